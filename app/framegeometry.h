#pragma once

#include <string_view>

#include "platform/settingskeys.h"
#include "platform/settingsstore.h"

class QWidget;

namespace velmora::app {

// The frame's own place, size and maximized state between runs, in the
// settings section "Frame", value "Geometry": Qt's geometry record of the
// window (its normal place and size, whether it was maximized, the screen)
// as base64 text. Written at every close of the frame, whatever its state;
// the toolbar layout keeps its own rule (kept only from a maximized frame).
inline constexpr std::string_view kFrameSection = platform::keys::kFrame;
inline constexpr std::string_view kFrameGeometry = platform::keys::frame::kGeometry;

void SaveFrameGeometry(platform::SettingsStore& store, const QWidget& frame);

// Gives a frame that is not shown yet the stored place, size and maximized
// state. False, and the frame untouched, when nothing usable is stored. A
// place off every screen is moved onto one.
bool RestoreFrameGeometry(platform::SettingsStore& store, QWidget& frame);

}  // namespace velmora::app
