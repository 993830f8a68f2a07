#include "platform/picturesave.h"

#include <filesystem>
#include <system_error>

namespace velmora::platform {

bool SavePictureFile(FileDialog& files, MessageBox& box, const PictureSaveTexts& texts,
                     const PictureWriter& write) {
  const auto chosen = files.Save(std::string(texts.title), std::string(texts.filter), "", "");
  if (!chosen || chosen->empty()) return false;
  std::filesystem::path path(*chosen);
  if (!path.has_extension()) path += ".bmp";
  const std::string name = path.string();
  std::error_code error;
  if (std::filesystem::exists(path, error)) {
    const auto answer = box.Show(name + std::string(texts.replaceQuestion), std::string(texts.replaceTitle),
                                 MsgIcon::Exclamation, MsgButtons::YesNo);
    if (answer != MsgResult::Yes) return false;
  }
  if (write(name)) return true;
  box.Show(name + "\r\n" + std::string(texts.failed), std::string(texts.title), MsgIcon::Critical);
  return false;
}

}  // namespace velmora::platform
