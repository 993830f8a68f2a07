#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>
#include <string>
#include <vector>

#include "expr/fault.h"
#include "expr/numtext.h"
#include "matrix/complexmatrix.h"
#include "matrix/matrixcontext.h"
#include "tests/matrix/matrixbuild.h"
#include "tests/support/recordingmessagebox.h"

namespace velmora::matrix {
namespace {

using testing::MakeMatrix;
using testing::Rows;
using testing::Sized;
using testing::TextOnly;
using testing::Texts;

// One run of the elimination: inverse, solution and determinant as texts,
// and the messages shown.
struct Outcome {
  Rows inverse;
  Rows solution;
  std::string determinant;
  bool singular = false;
  std::vector<velmora::testing::RecordingMessageBox::Shown> boxes;
};

Outcome Eliminate(const Rows& a, const Rows& b, int precision) {
  velmora::testing::RecordingMessageBox box;
  MatrixContext context(box);
  context.Precision = precision;
  const ComplexMatrix ma = MakeMatrix("Matrix A", a);
  const ComplexMatrix mb =
      b.empty() ? Sized("Matrix_F", static_cast<int>(a.size()), 1) : MakeMatrix("Matrix B", b);
  ComplexMatrix x = Sized("Matrix S", static_cast<int>(a.size()), 1);
  ComplexMatrix inv = Sized("Matrix I", static_cast<int>(a.size()), static_cast<int>(a.size()));
  inv.GaussJordan(ma, mb, x, context);
  return {Texts(inv), Texts(x), inv.Determinant().RectText(), context.SingularFlag, box.Boxes()};
}

struct InverseCase {
  Rows a;
  int precision;
  Rows inverse;
  std::string determinant;
  const char* why;
};

const InverseCase kInverseCases[] = {
    {{{"0"}}, 3, {{"0"}}, "0", "a 1 x 1 zero is not singular: its lone pivot counts once"},
    {{{"0", "1"}, {"1", "0"}}, 3, {{"0", "1"}, {"1", "0"}}, "-1", "first candidate (0, 1): one negation"},
    {{{"1", "2"}, {"3", "4"}}, 15, {{"-2", "1"}, {"1.5", "-.5"}}, "-2", "a real 2 x 2"},
    {{{"3"}}, 2, {{".33"}}, "3", "two places"},
    {{{"1+j1"}}, 3, {{".5-j.5"}}, "1+j1", "a complex pivot whose real part equals the old one"},
    {{{"2+j1"}}, 3, {{".4-j.2"}}, "2+j2", "the determinant's imaginary part uses the new real part"},
    {{{"2", "0", "0"}, {"0", "4", "0"}, {"0", "0", "8"}},
     3,
     {{".5", "0", "0"}, {"0", ".25", "0"}, {"0", "0", ".125"}},
     "64",
     "a diagonal matrix"},
    // Working values below 1E-04 and from 1E+15 up are printed positional:
    // in exponent form their letter would read back as the imaginary unit.
    {{{"1", ".000015"}, {"0", "1"}},
     6,
     {{"1", "-.000015"}, {"0", "1"}},
     "1",
     "a tiny working value reads back as itself"},
    {{{"100000"}}, 15, {{".00001"}}, "100000", "the inverse of 1E+05 is 1E-05, not 0 + j1"},
    {{{"200", "1"}, {"1", "200"}},
     6,
     {{".005", "-.000025"}, {"-.000025", ".005"}},
     "39999",
     "the off-diagonal entries of the inverse lie below 1E-04"},
    {{{".0000000000000001"}},
     15,
     {{"10000000000000000"}},
     "0",
     "an inverse above 1E+15 prints all its digits"},
};

TEST(GaussJordan, Inverses) {
  for (const auto& c : kInverseCases) {
    const Outcome o = Eliminate(c.a, {}, c.precision);
    EXPECT_FALSE(o.singular) << c.why;
    EXPECT_TRUE(o.boxes.empty()) << c.why;
    EXPECT_EQ(o.inverse, c.inverse) << c.why;
    EXPECT_EQ(o.determinant, c.determinant) << c.why;
  }
}

struct SingularCase {
  Rows a;
  const char* why;
};

const SingularCase kSingularCases[] = {
    {{{"0", "0"}, {"0", "0"}}, "2 x 2 zero: caught by the test at the end"},
    {{{"0", "0", "0"}, {"0", "0", "0"}, {"0", "0", "0"}}, "3 x 3 zero: caught in round 3"},
    {{{"1", "2"}, {"2", "4"}}, "exactly singular"},
    {{{"1", "2"}, {"2", "4.0000000000000001"}}, "the last digit is lost in a double"},
};

TEST(GaussJordan, SingularMatrices) {
  for (const auto& c : kSingularCases) {
    const Outcome o = Eliminate(c.a, {}, 3);
    EXPECT_TRUE(o.singular) << c.why;
    ASSERT_EQ(o.boxes.size(), 1U) << c.why;
    EXPECT_EQ(o.boxes[0].text, "Matrix A is singular and cannot be inverted.") << c.why;
    EXPECT_EQ(o.boxes[0].title, "Error") << c.why;
    EXPECT_EQ(o.boxes[0].icon, platform::MsgIcon::Exclamation) << c.why;
    // The inverse and the determinant stay as Init left them, the solution empty.
    for (const auto& row : o.inverse)
      for (const auto& cell : row) EXPECT_EQ(cell, "") << c.why;
    for (const auto& row : o.solution) EXPECT_EQ(row[0], "") << c.why;
    EXPECT_EQ(o.determinant, "1+j0") << c.why;
  }
}

TEST(GaussJordan, NoiseAboveTheCutIsNotSingular) {
  // The last pivot of this singular matrix is rounding noise of about 9E-16:
  // it survives the 15-place cut as .000000000000001. The run goes through,
  // the determinant is the noise times the other pivots, and the inverse
  // comes out real and huge.
  const Outcome o = Eliminate({{"1", "2", "3"}, {"4", "5", "6"}, {"7", "8", "9"}}, {}, 15);
  EXPECT_FALSE(o.singular);
  EXPECT_TRUE(o.boxes.empty());
  EXPECT_EQ(o.determinant, "-.000000000000012");
  double largest = 0;
  for (const auto& row : o.inverse) {
    for (const auto& cell : row) {
      EXPECT_EQ(cell.find_first_of("jEe"), std::string::npos) << cell;
      largest = std::max(largest, std::fabs(expr::TextToNumber(cell)));
    }
  }
  EXPECT_GT(largest, 1e14);
}

TEST(GaussJordan, DeterminantOfALargeRealMatrixIsReal) {
  // 20 on the diagonal and small integers elsewhere: the running determinant
  // passes 1E+15, where its print used to take exponent form and read back
  // with the E as the imaginary unit.
  constexpr int n = 12;
  Rows rows(n);
  std::vector<double> a(n * n);
  for (int i = 0; i < n; ++i) {
    for (int j = 0; j < n; ++j) {
      const int v = i == j ? 20 : (i * 7 + j * 3) % 5;
      a[static_cast<std::size_t>(i * n + j)] = v;
      rows[static_cast<std::size_t>(i)].push_back(std::to_string(v));
    }
  }
  // The same determinant by plain elimination in doubles, for comparison.
  double want = 1;
  for (int k = 0; k < n; ++k) {
    const double pivot = a[static_cast<std::size_t>(k * n + k)];
    want *= pivot;
    for (int i = k + 1; i < n; ++i) {
      const double f = a[static_cast<std::size_t>(i * n + k)] / pivot;
      for (int j = k; j < n; ++j)
        a[static_cast<std::size_t>(i * n + j)] -= f * a[static_cast<std::size_t>(k * n + j)];
    }
  }
  const Outcome o = Eliminate(rows, {}, 15);
  EXPECT_FALSE(o.singular);
  EXPECT_EQ(o.determinant.find_first_of("jEe"), std::string::npos) << o.determinant;
  EXPECT_NEAR(expr::TextToNumber(o.determinant), want, 1e-12 * want) << o.determinant;
}

TEST(GaussJordan, SolvesASystem) {
  const Outcome o = Eliminate({{"2", "1"}, {"1", "3"}}, {{"3"}, {"5"}}, 3);
  EXPECT_EQ(o.solution, (Rows{{".8"}, {"1.4"}}));
  EXPECT_EQ(o.inverse, (Rows{{".6", "-.2"}, {"-.2", ".4"}}));
  EXPECT_EQ(o.determinant, "5");
}

TEST(GaussJordan, SolvesAComplexSystem) {
  // (1+j)x = 2j gives x = 1 + j.
  const Outcome o = Eliminate({{"1+j1"}}, {{"j2"}}, 15);
  EXPECT_EQ(o.solution, (Rows{{"1+j1"}}));
}

TEST(GaussJordan, OperandsStayAsTheyWere) {
  velmora::testing::RecordingMessageBox box;
  MatrixContext context(box);
  const ComplexMatrix a = MakeMatrix("Matrix A", {{"4", "7"}, {"2", "6"}});
  const ComplexMatrix b = MakeMatrix("Matrix B", {{"1"}, {"2"}});
  ComplexMatrix x = Sized("Matrix S", 2, 1);
  ComplexMatrix inv = Sized("Matrix I", 2, 2);
  inv.GaussJordan(a, b, x, context);
  EXPECT_EQ(Texts(a), (Rows{{"4", "7"}, {"2", "6"}}));
  EXPECT_EQ(Texts(b), (Rows{{"1"}, {"2"}}));
}

TEST(GaussJordan, WrongSizeOfTheTargetIsTheCallersFault) {
  velmora::testing::RecordingMessageBox box;
  MatrixContext context(box);
  const ComplexMatrix a = MakeMatrix("Matrix A", {{"4", "7"}, {"2", "6"}});
  const ComplexMatrix b = Sized("Matrix_F", 2, 1);
  ComplexMatrix x = Sized("Matrix S", 2, 1);
  ComplexMatrix inv = Sized("Matrix I", 1, 1);
  EXPECT_THROW(inv.GaussJordan(a, b, x, context), expr::Fault);
}

// A dense random real matrix I + u v' (u, v in [1, 2], entries cut to three
// decimals), well conditioned, so the 15-place cut is the only error.
Rows RandomRealMatrix(int n, unsigned seed, std::vector<double>& values) {
  std::mt19937_64 gen(seed);
  std::uniform_real_distribution<double> d(1.0, 2.0);
  std::vector<double> u(static_cast<std::size_t>(n));
  std::vector<double> v(static_cast<std::size_t>(n));
  for (int i = 0; i < n; ++i) {
    u[static_cast<std::size_t>(i)] = d(gen);
    v[static_cast<std::size_t>(i)] = d(gen);
  }
  Rows rows(static_cast<std::size_t>(n));
  values.assign(static_cast<std::size_t>(n * n), 0);
  for (int i = 0; i < n; ++i) {
    for (int j = 0; j < n; ++j) {
      const double x = expr::RoundTo(
          (i == j ? 1 : 0) + u[static_cast<std::size_t>(i)] * v[static_cast<std::size_t>(j)], 3);
      values[static_cast<std::size_t>(i * n + j)] = x;
      rows[static_cast<std::size_t>(i)].push_back(expr::NumberToText(x));
    }
  }
  return rows;
}

class RandomInverse : public ::testing::TestWithParam<int> {};

TEST_P(RandomInverse, ProductWithTheMatrixIsTheIdentity) {
  const int n = GetParam();
  for (unsigned seed : {1U, 2U, 3U}) {
    std::vector<double> a;
    const Rows rows = RandomRealMatrix(n, seed, a);
    velmora::testing::RecordingMessageBox box;
    MatrixContext context(box);
    context.Precision = 15;
    const ComplexMatrix ma = MakeMatrix("Matrix A", rows);
    const ComplexMatrix mb = Sized("Matrix_F", n, 1);
    ComplexMatrix x = Sized("Matrix S", n, 1);
    ComplexMatrix inv = Sized("Matrix I", n, n);
    inv.GaussJordan(ma, mb, x, context);
    ASSERT_FALSE(context.SingularFlag);
    double worst = 0;
    for (int i = 0; i < n; ++i) {
      for (int j = 0; j < n; ++j) {
        double sum = 0;
        for (int k = 0; k < n; ++k) {
          const complex::ComplexNumber z = inv.Item(k, j);
          EXPECT_EQ(z.Imaginary(), 0);
          sum += a[static_cast<std::size_t>(i * n + k)] * z.Real();
        }
        worst = std::max(worst, std::fabs(sum - (i == j ? 1.0 : 0.0)));
      }
    }
    // Every working value carries 15 significant digits; the product of n
    // terms of size about 1 keeps n times that.
    EXPECT_LT(worst, n * 1e-14) << "n = " << n << ", seed " << seed;
  }
}

INSTANTIATE_TEST_SUITE_P(Sizes, RandomInverse, ::testing::Values(10, 50));

// A dense random complex matrix; its elimination meets values in exponent
// form, which take the text road even with the shortcuts on.
Rows RandomComplexMatrix(int n, unsigned seed) {
  std::mt19937_64 gen(seed);
  std::uniform_real_distribution<double> d(-1.0, 1.0);
  Rows rows(static_cast<std::size_t>(n));
  for (auto& row : rows) {
    for (int j = 0; j < n; ++j) {
      complex::ComplexNumber z;
      z.SetReal(d(gen));
      z.SetImaginary(d(gen));
      z.FormatRectangular(4);
      row.push_back(z.RectText());
    }
  }
  return rows;
}

TEST(GaussJordan, ShortcutsPrintTheSameDigitsAsTheTextRoad) {
  struct Case {
    Rows a;
    const char* why;
  };
  std::vector<double> unused;
  const Case cases[] = {
      {RandomComplexMatrix(8, 11), "dense complex 8 x 8"},
      {RandomComplexMatrix(30, 12), "dense complex 30 x 30"},
      {RandomRealMatrix(30, 13, unused), "real 30 x 30"},
      {{{"1", ".000015"}, {"0", "1"}}, "a tiny working value"},
      {{{"200", "1"}, {"1", "200"}}, "tiny entries of the inverse"},
      {{{"1", "2"}, {"2", "4"}}, "singular"},
  };
  for (const auto& c : cases) {
    for (int precision : {3, 15}) {
      const Outcome fast = Eliminate(c.a, {}, precision);
      Outcome slow;
      {
        TextOnly textOnly;
        slow = Eliminate(c.a, {}, precision);
      }
      EXPECT_EQ(fast.inverse, slow.inverse) << c.why;
      EXPECT_EQ(fast.solution, slow.solution) << c.why;
      EXPECT_EQ(fast.determinant, slow.determinant) << c.why;
      EXPECT_EQ(fast.singular, slow.singular) << c.why;
    }
  }
}

}  // namespace
}  // namespace velmora::matrix
