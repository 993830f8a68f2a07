#include "geometry/figuresave.h"

#include "platform/picturesave.h"

namespace velmora::geometry {

bool SaveFigurePicture(platform::FileDialog& files, platform::MessageBox& box, const FigureWriter& write) {
  static constexpr platform::PictureSaveTexts kTexts{kFigureSaveTitle, kFigureSaveFilter, kFigureReplaceTitle,
                                                     kFigureReplaceQuestion, kFigureSaveFailed};
  return platform::SavePictureFile(files, box, kTexts, write);
}

}  // namespace velmora::geometry
