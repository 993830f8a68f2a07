// From a key press or an operation key of the Complex Calculator to its
// labels showing the new texts, widgets included, offscreen. The goal is
// under 5 ms a press. The reference in the same run is the bare logic of the
// same press (keypad and calculator without the window), so the cost of the
// window's refresh reads as the difference.
#include <benchmark/benchmark.h>

#include <string>

#include <QAbstractButton>
#include <QApplication>
#include <QKeyEvent>
#include <QLabel>

#include "complex/complexcalculator.h"
#include "complex/complexkeypad.h"
#include "complex/qt/frmcomplex.h"

namespace {

using velmora::complex_qt::ComplexServices;
using velmora::complex_qt::FrmComplex;

velmora::platform::SilentMessageBox gBox;

QApplication& App() {
  static int argc = 1;
  static char name[] = "bench_complexwin";
  static char* argv[] = {name, nullptr};
  static QApplication app(argc, argv);
  return app;
}

void Press(QWidget& at, Qt::Key key, Qt::KeyboardModifiers modifiers) {
  QKeyEvent press(QEvent::KeyPress, key, modifiers);
  QApplication::sendEvent(&at, &press);
}

// A keypad digit typed into a part: the key event, the keypad, the label.
void BM_KeypadDigitToLabel(benchmark::State& state) {
  App();
  FrmComplex window(nullptr, ComplexServices{&gBox, nullptr, nullptr, QString()});
  window.show();
  QApplication::processEvents();
  auto* label = window.findChild<QLabel*>(QStringLiteral("lblZ1"));
  int n = 0;
  for (auto _ : state) {
    // A part key and a digit; every 8 digits the operand starts over, so
    // the part stays as short as a typed number.
    if (n++ % 8 == 0) window.Calculator().Fields().lblZ1 = "0+j0";
    Press(window, (n % 2 == 0) ? Qt::Key_B : Qt::Key_A, Qt::NoModifier);
    Press(window, Qt::Key_7, Qt::KeypadModifier);
    benchmark::DoNotOptimize(label->text());
  }
  state.SetItemsProcessed(state.iterations() * 2);
}
BENCHMARK(BM_KeypadDigitToLabel)->Unit(benchmark::kMicrosecond);

// An operation key clicked: parse, 6-place arithmetic, every label refreshed.
void BM_OperationKeyToLabels(benchmark::State& state) {
  App();
  FrmComplex window(nullptr, ComplexServices{&gBox, nullptr, nullptr, QString()});
  window.Calculator().Fields().lblZ1 = "3+j4";
  window.Calculator().Fields().lblZ2 = "1+j-2";
  window.show();
  QApplication::processEvents();
  QAbstractButton* tan = window.Button("cmdtang");
  auto* result = window.findChild<QLabel*>(QStringLiteral("LabelRezultat"));
  for (auto _ : state) {
    Press(window, Qt::Key_Asterisk, Qt::KeypadModifier);
    tan->click();
    benchmark::DoNotOptimize(result->text());
  }
  state.SetItemsProcessed(state.iterations() * 2);
}
BENCHMARK(BM_OperationKeyToLabels)->Unit(benchmark::kMicrosecond);

// The reference: the same presses on the logic alone.
void BM_ReferenceLogicOnly(benchmark::State& state) {
  velmora::complex::ComplexCalculator calc(gBox);
  velmora::complex::ComplexKeypad keypad(calc.Fields(), gBox);
  calc.Fields().lblZ2 = "1+j-2";
  int n = 0;
  for (auto _ : state) {
    if (n++ % 8 == 0) calc.Fields().lblZ1 = "0+j0";
    keypad.cmdBroj((n % 2 == 0) ? 2 : 1);
    keypad.Number(7);
    const std::string typed = calc.Fields().lblZ1;
    calc.Fields().lblZ1 = "3+j4";
    calc.Run(velmora::complex::Operation::Multiply);
    calc.Run(velmora::complex::Operation::Tan);
    benchmark::DoNotOptimize(calc.Fields().LabelRezultat);
    calc.Fields().lblZ1 = typed;
  }
}
BENCHMARK(BM_ReferenceLogicOnly)->Unit(benchmark::kMicrosecond);

}  // namespace

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  App();
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
  return 0;
}
