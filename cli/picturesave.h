#pragma once

#include <string>

#include <QImage>

#include "cli/pictureoptions.h"
#include "platform/settingsstore.h"

namespace velmora::cli {

// Writes the picture to every output the options name: JPEG at the
// quality, bitmap, and PDF printed inside the stored margins, framed when
// `frame`. False with the reason at the first that fails. Builds with Qt only.
bool SavePictures(const QImage& picture, const PictureOptions& options, platform::SettingsStore& settings,
                  bool frame, std::string& error);

}  // namespace velmora::cli
