#include "geometry/figuresave.h"

#include <filesystem>
#include <system_error>

namespace velmora::geometry {

bool SaveFigurePicture(platform::FileDialog& files, platform::MessageBox& box, const FigureWriter& write) {
  const auto chosen = files.Save(std::string(kFigureSaveTitle), std::string(kFigureSaveFilter), "", "");
  if (!chosen || chosen->empty()) return false;
  std::filesystem::path path(*chosen);
  if (!path.has_extension()) path += ".bmp";
  const std::string name = path.string();
  std::error_code error;
  if (std::filesystem::exists(path, error)) {
    const auto answer = box.Show(name + std::string(kFigureReplaceQuestion), std::string(kFigureReplaceTitle),
                                 platform::MsgIcon::Exclamation, platform::MsgButtons::YesNo);
    if (answer != platform::MsgResult::Yes) return false;
  }
  if (write(name)) return true;
  box.Show(name + "\r\n" + std::string(kFigureSaveFailed), std::string(kFigureSaveTitle),
           platform::MsgIcon::Critical);
  return false;
}

}  // namespace velmora::geometry
