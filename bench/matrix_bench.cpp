// Gauss-Jordan elimination of a 50 x 50 complex matrix, the largest the
// Matrix Calculator takes, against Eigen's partial-pivoting LU inverse of the
// same matrix in the same run. Ours prints and reads back every intermediate
// value through its 15-place text, so it is slower by design; the text-only
// run shows what the print shortcuts save.
#include <benchmark/benchmark.h>

#include <Eigen/Dense>
#include <complex>
#include <random>
#include <string>
#include <vector>

#include "complex/complexnumber.h"
#include "complex/printshortcut.h"
#include "matrix/complexmatrix.h"
#include "matrix/matrixcontext.h"
#include "platform/messagebox.h"
#include "tests/matrix/matrixbuild.h"

namespace {

using velmora::complex::ComplexNumber;
using velmora::matrix::ComplexMatrix;
using velmora::matrix::testing::Sized;

constexpr int kN = 50;

// I + u v' with complex u, v: dense, well conditioned, and its elimination
// keeps to values that print in plain form. Entries are cut to 4 places.
std::vector<ComplexNumber> Entries() {
  std::mt19937_64 gen(50);
  std::uniform_real_distribution<double> d(1.0, 2.0);
  std::vector<std::complex<double>> u(kN);
  std::vector<std::complex<double>> v(kN);
  for (int i = 0; i < kN; ++i) {
    u[static_cast<std::size_t>(i)] = {d(gen), d(gen) - 1.5};
    v[static_cast<std::size_t>(i)] = {d(gen), d(gen) - 1.5};
  }
  std::vector<ComplexNumber> entries;
  for (int i = 0; i < kN; ++i) {
    for (int j = 0; j < kN; ++j) {
      const std::complex<double> x =
          (i == j ? 1.0 : 0.0) + u[static_cast<std::size_t>(i)] * v[static_cast<std::size_t>(j)];
      ComplexNumber z;
      z.SetReal(x.real());
      z.SetImaginary(x.imag());
      z.FormatRectangular(4);
      ComplexNumber parsed;
      parsed.CopyRectText(z);
      entries.push_back(parsed);
    }
  }
  return entries;
}

ComplexMatrix OperandA() {
  const auto entries = Entries();
  ComplexMatrix a = Sized("Matrix A", kN, kN);
  for (int i = 0; i < kN; ++i)
    for (int j = 0; j < kN; ++j) a.SetItem(i, j, entries[static_cast<std::size_t>(i * kN + j)]);
  return a;
}

void RunGaussJordan(benchmark::State& state, bool shortcuts) {
  velmora::complex::SetPrintShortcuts(shortcuts);
  const ComplexMatrix a = OperandA();
  const ComplexMatrix b = Sized("Matrix_F", kN, 1);
  velmora::platform::SilentMessageBox box;
  velmora::matrix::MatrixContext context(box);
  context.Precision = 15;
  std::string det;
  for (auto _ : state) {
    ComplexMatrix x = Sized("Matrix S", kN, 1);
    ComplexMatrix inverse = Sized("Matrix I", kN, kN);
    inverse.GaussJordan(a, b, x, context);
    det = inverse.Determinant().RectText();
    benchmark::DoNotOptimize(det);
  }
  velmora::complex::SetPrintShortcuts(true);
  if (context.SingularFlag) state.SkipWithError("singular");
  state.SetLabel("det " + det);
}

void BM_GaussJordan50(benchmark::State& state) { RunGaussJordan(state, true); }
BENCHMARK(BM_GaussJordan50)->Unit(benchmark::kMillisecond);

void BM_GaussJordan50_TextOnly(benchmark::State& state) { RunGaussJordan(state, false); }
BENCHMARK(BM_GaussJordan50_TextOnly)->Unit(benchmark::kMillisecond)->Iterations(3);

void BM_Reference_EigenPartialPivLUInverse50(benchmark::State& state) {
  const auto entries = Entries();
  Eigen::MatrixXcd a(kN, kN);
  for (int i = 0; i < kN; ++i) {
    for (int j = 0; j < kN; ++j) {
      const ComplexNumber& z = entries[static_cast<std::size_t>(i * kN + j)];
      a(i, j) = {z.Real(), z.Imaginary()};
    }
  }
  for (auto _ : state) {
    Eigen::PartialPivLU<Eigen::MatrixXcd> lu(a);
    Eigen::MatrixXcd inverse = lu.inverse();
    std::complex<double> det = lu.determinant();
    benchmark::DoNotOptimize(inverse.data());
    benchmark::DoNotOptimize(det);
  }
}
BENCHMARK(BM_Reference_EigenPartialPivLUInverse50)->Unit(benchmark::kMillisecond);

void BM_Multiply50(benchmark::State& state) {
  const ComplexMatrix a = OperandA();
  for (auto _ : state) {
    ComplexMatrix s;
    s.Multiply(a, a, 15);
    benchmark::DoNotOptimize(s.NumRows());
  }
}
BENCHMARK(BM_Multiply50)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
