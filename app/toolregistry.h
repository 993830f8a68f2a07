#pragma once

namespace velmora::app {

class ToolWindowHost;
struct FrameServices;

// Registers every tool window this version has with the frame's host. Each
// window gets the frame's services and the host itself, so it can open the
// other tools.
void RegisterToolWindows(ToolWindowHost& host, const FrameServices& services);

}  // namespace velmora::app
