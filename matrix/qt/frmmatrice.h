#pragma once

#include <array>
#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include <QMainWindow>

#include "matrix/gridedit.h"
#include "matrix/matrixcalculator.h"
#include "platform/filedialog.h"
#include "platform/inputbox.h"
#include "platform/messagebox.h"
#include "platform/settingsstore.h"
#include "platform/shellopen.h"
#include "platform/toolwindows.h"

class QAction;
class QCheckBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;
class QTabWidget;
class QToolBar;
class QWidget;

namespace velmora::matrix_qt {

class GridView;
class LineDialogs;
struct LineDialogCaptions;
class RelayMessageBox;

// What the Matrix Calculator needs from the program. All pointers must
// outlive the window.
struct FrmMatriceServices {
  platform::MessageBox* messages = nullptr;     // required
  platform::InputBox* input = nullptr;          // required
  platform::FileDialog* files = nullptr;        // null: the file commands do nothing
  platform::ShellLauncher* shell = nullptr;     // null: the preview opens nothing
  platform::SettingsStore* settings = nullptr;  // null: the file type is never registered
  platform::ToolWindows* tools = nullptr;       // null: MathPad is missing
  LineDialogs* lines = nullptr;                 // null: the window's own dialogs
  // Where tmp1.mcf and tmp2.mcf are written when two grids are exchanged.
  std::filesystem::path scratchFolder;
  // Registers the .mcf type with the desktop; called at the first open while
  // the setting says the type is not registered yet.
  std::function<bool()> registerFileType;
};

// `frmMatrice`, the Matrix Calculator: the "Action" frame of operations with
// the size boxes and "&Continue", the "Options" frame, `Toolbar1`, the five
// tabs of grids ([A], [B], the solution, the inverse with the determinant,
// and [T]), the status bar `STB1` and the menus. One window, non-modal, made
// at first use; it is deleted when closed.
class FrmMatrice final : public QMainWindow {
  Q_OBJECT

 public:
  FrmMatrice(QWidget* owner, FrmMatriceServices services);
  ~FrmMatrice() override;

  // Loads a .mcf file into [A] (the command line and the desktop's open).
  void OpenFile(const QString& path);

  // The commands, as the menus and toolbar run them.
  void SelectOperation(int operation);
  void Continue();   // cmdGo, "&Continue"
  void Calculate();  // cmdGo2, toolbar button 11
  void EnterValues(int operation);
  void NewMatrices();
  void OpenMatrix();
  void SaveMatrix();
  void PublishHtml();
  void EditInMathPad();
  void CopyMatrix();
  void PasteMatrix();
  void CutMatrix();
  void ClearMatrix();
  void ClearAll();
  void DeleteLine(bool column);
  void SwapLines(bool column);
  void SwapMatrixes(int first, int second);
  void Transpose();
  void Adjoint();
  void Identity();
  void Trace();
  void CharacteristicEquation();
  void MultiplyLine(bool column);
  void SubmitLine(bool column);

  // A calculation runs away from the window, which keeps answering; the
  // results are taken over when it ends (CalculationFinished).
  bool Busy() const { return busy_; }
  matrix::MatrixCalculator& Calculator() { return calc_; }
  GridView* Grid(int tab) const { return views_[static_cast<std::size_t>(tab)]; }
  QTabWidget* Tabs() const { return tabs_; }
  QString StatusText(int panel) const;
  QAction* ToolbarButton(int index) const;

 signals:
  void CalculationFinished(bool ok);

 protected:
  void closeEvent(QCloseEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void BuildWindow();
  void BuildMenus();
  void BuildToolbar();
  QWidget* BuildPanel();
  void SetStatus(const QString& panel1, const QString& panel2 = QString());
  void ToolbarClicked(int index);
  void RefreshGrids();
  void ShowResults();
  void RunInBackground(std::function<bool(matrix::MatrixCalculator&)> step, std::function<void(bool)> after);
  void TakeResults(const matrix::MatrixCalculator& done);
  int ActiveTab() const;
  GridView* ActiveGrid() const;
  QLineEdit* EntryOf(int tab) const;
  void SetEntrySize(int tab);
  void RegisterTypeOnce();
  void PrecisionEdited();
  bool WriteAtomically(const std::string& path, const std::string& bytes);
  void ShowSwapTab(const char* caption, const QString& status);
  bool OnMatrixA();
  std::optional<matrix::LinePair> AskLinePair(const LineDialogCaptions& captions, int count);
  void TakeOptions();

  FrmMatriceServices services_;
  std::unique_ptr<RelayMessageBox> relay_;
  std::unique_ptr<LineDialogs> ownLines_;
  matrix::MatrixCalculator calc_;
  bool busy_ = false;

  QTabWidget* tabs_ = nullptr;
  std::array<GridView*, 5> views_{};
  std::map<int, QRadioButton*> options_;
  std::map<int, QAction*> buttons_;
  QLabel* lblAction_ = nullptr;
  QLabel* lblEntry1_ = nullptr;
  QLabel* lblEntry2_ = nullptr;
  QLabel* lblExample_ = nullptr;
  QLineEdit* txtEntry1_ = nullptr;
  QLineEdit* txtEntry2_ = nullptr;
  QPushButton* cmdGo_ = nullptr;
  QCheckBox* chRis_ = nullptr;
  QCheckBox* chkApply_ = nullptr;
  QCheckBox* chNule_ = nullptr;
  QLineEdit* txtPrecision_ = nullptr;
  QLineEdit* txtDet_ = nullptr;
  QLineEdit* txtEq_ = nullptr;
  QLabel* lblEq_ = nullptr;
  QLabel* status1_ = nullptr;
  QLabel* status2_ = nullptr;
  QAction* mnuMathPad_ = nullptr;
  QWidget* panel_ = nullptr;
};

}  // namespace velmora::matrix_qt
