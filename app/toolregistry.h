#pragma once

class QString;

namespace velmora::app {

class ToolWindowHost;
struct FrameServices;

// Registers every tool window this version has with the frame's host. Each
// window gets the frame's services and the host itself, so it can open the
// other tools.
void RegisterToolWindows(ToolWindowHost& host, const FrameServices& services);

// Opens the Matrix Calculator (made if needed, brought forward) with a
// matrix file loaded into [A]: the command line's file and the file a
// second start hands over.
void OpenMatrixFile(ToolWindowHost& host, const QString& path);

}  // namespace velmora::app
