#pragma once

#include <gtest/gtest.h>

#include "expr/evaluator.h"

namespace velmora::testing {

// The text evaluator keeps state beside its objects (the argument its
// failure box names, the failure flag the drawing loops read). Including
// this header resets that state before and after every test of the
// program, so no test sees what another left and the order of tests does
// not matter.
class EvaluatorStateReset final : public ::testing::EmptyTestEventListener {
 public:
  void OnTestStart(const ::testing::TestInfo&) override { expr::Evaluator::ResetModuleState(); }
  void OnTestEnd(const ::testing::TestInfo&) override { expr::Evaluator::ResetModuleState(); }
};

// Registered once per test program, before main runs the tests.
inline const bool kEvaluatorStateResetRegistered = [] {
  ::testing::UnitTest::GetInstance()->listeners().Append(new EvaluatorStateReset);
  return true;
}();

}  // namespace velmora::testing
