#include "platform/qt/qtsavefile.h"

#include <QSaveFile>

namespace velmora::qtplatform {

bool SaveFileAtomically(const QString& path, const std::function<bool(QIODevice&)>& write) {
  QSaveFile file(path);
  if (!file.open(QIODevice::WriteOnly)) return false;
  if (!write(file)) {
    file.cancelWriting();
    return false;
  }
  return file.commit();
}

}  // namespace velmora::qtplatform
