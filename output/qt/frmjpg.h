#pragma once

#include <QDialog>
#include <QImage>
#include <QString>

#include "base/messagebox.h"
#include "platform/filedialog.h"

class QGroupBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QSlider;

namespace velmora::output_qt {

// `frmJPG` (and its twin `frmJPG2`, which differs only in where the picture
// comes from: the graph window or the Geometry Calculator's figure): saves a
// picture as a JPEG file at a chosen quality. The slider `Slider1` (0 to
// 100) and the box `txtQuality` are kept equal; the box takes digits only
// and pulls a value above 100 back to 100. `picTest` shows the picture as
// the encoder will give it back at the quality chosen. "&Save..." asks for
// the file (filter "JPEG Files (*.JPG)", ".JPG" added to a bare name, the
// replace question for a file that exists), writes it, warns when that
// fails, and closes the dialog.
class FrmJPG final : public QDialog {
  Q_OBJECT

 public:
  static constexpr const char* kSaveFilter = "JPEG Files (*.JPG)|*.JPG|";
  static constexpr const char* kDefaultExt = "JPG";
  static constexpr const char* kSaveTitle = "Save As";

  FrmJPG(const QImage& picture, platform::FileDialog& files, base::MessageBox& messages,
         QWidget* parent = nullptr);

  int Quality() const { return quality_; }
  // The file written by the last save, empty when none.
  const QString& SavedFile() const { return saved_; }

  QSlider* Slider1() const { return slider_; }
  QLineEdit* txtQuality() const { return txtQuality_; }
  QLabel* picTest() const { return picTest_; }
  QPushButton* cmdSaveStdPic() const { return save_; }
  QPushButton* Command2() const { return cancel_; }

  // cmdSaveStdPic: the save dialog, the writer, the warning; the dialog closes.
  void SaveClicked();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void SliderChanged(int value);
  void BoxChanged(const QString& text);
  void RefreshPreview();

  QImage picture_;
  platform::FileDialog& files_;
  base::MessageBox& messages_;
  QSlider* slider_ = nullptr;
  QLineEdit* txtQuality_ = nullptr;
  QLabel* picTest_ = nullptr;
  QPushButton* save_ = nullptr;
  QPushButton* cancel_ = nullptr;
  int quality_ = 100;
  bool syncing_ = false;
  QString saved_;
};

// Opens the JPEG dialog on a picture, modal over `parent`, and returns the
// file written (empty when the user saved nothing). Any window with a
// picture calls this: the graph window's File > Save Graph As > JPEG, the
// Geometry Calculator's figure.
QString SavePictureDialog(QWidget* parent, const QImage& picture, platform::FileDialog& files,
                          base::MessageBox& messages);

}  // namespace velmora::output_qt
