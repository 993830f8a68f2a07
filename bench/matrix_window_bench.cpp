// A 50 x 50 complex matrix from a .mcf file into the Matrix Calculator's
// grid of [A], its inverse and determinant computed and shown in their tab,
// on the offscreen platform: the file read, the grid views brought up to
// date, the calculation on its worker and the results taken over and drawn.
// The goal is 200 ms. The reference in the same run is the same file and
// calculation on the calculator's logic alone (no widgets, no worker), so the
// difference is the cost of the window.
#include <benchmark/benchmark.h>

#include <complex>
#include <random>
#include <sstream>
#include <string>

#include <QApplication>
#include <QTabWidget>
#include <QTemporaryDir>

#include "bench/offscreenhome.h"
#include "complex/complexnumber.h"
#include "matrix/matrixcalculator.h"
#include "matrix/mcffile.h"
#include "matrix/qt/frmmatrice.h"
#include "matrix/qt/gridview.h"
#include "platform/inputbox.h"
#include "platform/messagebox.h"

namespace {

using namespace velmora;

constexpr int kN = 50;

// I + u v' with complex u, v: dense and well conditioned, each entry cut to
// 4 places as a user's file would hold it.
matrix::Grid Operand() {
  std::mt19937_64 gen(50);
  std::uniform_real_distribution<double> d(1.0, 2.0);
  std::vector<std::complex<double>> u(kN);
  std::vector<std::complex<double>> v(kN);
  for (int i = 0; i < kN; ++i) {
    u[static_cast<std::size_t>(i)] = {d(gen), d(gen) - 1.5};
    v[static_cast<std::size_t>(i)] = {d(gen), d(gen) - 1.5};
  }
  matrix::Grid grid(kN, kN);
  for (int i = 0; i < kN; ++i) {
    for (int j = 0; j < kN; ++j) {
      const std::complex<double> x =
          (i == j ? 1.0 : 0.0) + u[static_cast<std::size_t>(i)] * v[static_cast<std::size_t>(j)];
      complex::ComplexNumber z;
      z.SetReal(x.real());
      z.SetImaginary(x.imag());
      z.FormatRectangular(4);
      grid.SetTextMatrix(i, j, z.RectText());
    }
  }
  return grid;
}

class NoInput final : public platform::InputBox {
 public:
  std::optional<std::string> Ask(const std::string&, const std::string&, const std::string&) override {
    return std::nullopt;
  }
};

struct File {
  QTemporaryDir dir;
  QString path = dir.filePath(QStringLiteral("m50.mcf"));
  File() { matrix::SaveGrid(path.toStdString(), Operand()); }
};

void BM_FileToInverseShown(benchmark::State& state) {
  File file;
  base::SilentMessageBox messages;
  NoInput input;
  matrix_qt::FrmMatriceServices services;
  services.messages = &messages;
  services.input = &input;
  matrix_qt::FrmMatrice window(nullptr, services);
  window.resize(1100, 600);
  window.show();
  QApplication::processEvents();
  window.SelectOperation(matrix::kDeterminantInverse);
  std::string det;
  for (auto _ : state) {
    window.OpenFile(file.path);
    window.Calculate();
    while (window.Busy()) QApplication::processEvents(QEventLoop::WaitForMoreEvents);
    // The tab is drawn before the time stops.
    window.Tabs()->repaint();
    det = window.Calculator().txtDet;
    benchmark::DoNotOptimize(det);
  }
  if (window.Grid(matrix::MatrixCalculator::kTabInverse)->model()->rowCount() != kN || det.empty())
    state.SkipWithError("the inverse was not shown");
  state.SetLabel("det " + det);
}
BENCHMARK(BM_FileToInverseShown)->Unit(benchmark::kMillisecond);

void BM_Reference_LogicOnly(benchmark::State& state) {
  File file;
  base::SilentMessageBox messages;
  matrix::MatrixCalculator calc(messages);
  calc.Operation = matrix::kDeterminantInverse;
  std::string det;
  for (auto _ : state) {
    matrix::LoadGrid(file.path.toStdString(), calc.grdGrid1);
    calc.EnterValues();
    calc.Go2();
    det = calc.txtDet;
    benchmark::DoNotOptimize(det);
  }
  state.SetLabel("det " + det);
}
BENCHMARK(BM_Reference_LogicOnly)->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char** argv) {
  QTemporaryDir home;
  velmora::bench::UseOffscreenHome(home);
  QApplication app(argc, argv);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
  return 0;
}
