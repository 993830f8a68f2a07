#pragma once

#include <memory>
#include <string_view>
#include <vector>

#include <QImage>
#include <QWidget>

#include "platform/clipboard.h"
#include "platform/filedialog.h"
#include "platform/messagebox.h"

class QTabWidget;
class QTextEdit;

namespace velmora::geometry_qt {

class GeoPageWidget;

// The services the calculator needs. `clipboard` may be null: the window
// then uses the application's clipboard.
struct GeoServices {
  platform::MessageBox* messages = nullptr;  // required
  platform::FileDialog* files = nullptr;     // null: the picture cannot be saved
  platform::Clipboard* clipboard = nullptr;
};

// `frmGeo`, the Geometry Calculator: a non-modal tool window with the tab
// control `SSTab1` of eight pages (Triangle, Polygon, Euclid, Circle,
// Sphere, Frustrum, Ellipsoid, Cone), each solving its figure from the case
// chosen in its "Select Case:" menu and drawing it, and the log box `rtG`
// that keeps the result line of every case solved.
class FrmGeo final : public QWidget {
  Q_OBJECT

 public:
  explicit FrmGeo(QWidget* owner, GeoServices services);
  ~FrmGeo() override;

  static constexpr std::string_view kCaption = "Geometry Calculator";

  QTabWidget* Tabs() const { return tabs_; }
  // The page with this tab caption, or null.
  GeoPageWidget* Page(std::string_view caption) const;
  GeoPageWidget* CurrentPage() const;
  QTextEdit* Log() const { return log_; }

  // The Copy button: the log's text to the clipboard.
  void CopyResult();
  // `kopypic`: the current page's figure to the clipboard as a picture.
  void CopyPicture();
  // The current page's figure as it shows it; the picture every save writes.
  QImage Picture() const;
  // `Sav1` of the calculator: the figure saved as a bitmap after the save
  // dialog and its questions.
  bool SavePicture();
  // The figure through the JPEG dialog (quality, preview, file).
  void SaveJpeg();
  // `Savjpg`: the figure written as a bitmap to `path` without a question,
  // the hand-over file the JPEG export reads. The one place a picture
  // leaves the calculator for another format.
  bool Savjpg(const QString& path) const;

 private:
  void AppendResult(const QString& text);

  GeoServices services_;
  std::unique_ptr<platform::Clipboard> ownClipboard_;
  QTabWidget* tabs_ = nullptr;
  std::vector<GeoPageWidget*> pages_;
  QTextEdit* log_ = nullptr;
};

}  // namespace velmora::geometry_qt
