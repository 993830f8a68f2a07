#include "platform/qt/qtfiledialog.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>

#include "platform/filefilter.h"

namespace velmora::qtplatform {

std::optional<std::string> QtFileDialog::Open(const std::string& title, const std::string& filter,
                                              const std::string& initialDir) {
  const QString path = QFileDialog::getOpenFileName(
      QApplication::activeWindow(), QString::fromStdString(title), QString::fromStdString(initialDir),
      QString::fromStdString(platform::FilterToQt(filter)));
  if (path.isEmpty()) return std::nullopt;
  return path.toStdString();
}

std::optional<std::string> QtFileDialog::Save(const std::string& title, const std::string& filter,
                                              const std::string& initialDir, const std::string& defaultName) {
  QString start = QString::fromStdString(defaultName);
  if (!initialDir.empty()) start = QDir(QString::fromStdString(initialDir)).filePath(start);
  const QString path = QFileDialog::getSaveFileName(
      QApplication::activeWindow(), QString::fromStdString(title), start,
      QString::fromStdString(platform::FilterToQt(filter)), nullptr, QFileDialog::DontConfirmOverwrite);
  if (path.isEmpty()) return std::nullopt;
  return path.toStdString();
}

}  // namespace velmora::qtplatform
