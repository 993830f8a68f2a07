#include "graph/graphwindow.h"

namespace velmora::graph {

GraphServices StandardServices(platform::SettingsStore& settings, platform::MessageBox& messages,
                               platform::InputBox& input) {
  GraphServices services;
  services.settings = &settings;
  services.messages = &messages;
  services.input = &input;
  services.evaluator1 = expr::MakeFormulaControl();
  services.evaluator2 = expr::MakeFormulaControl();
  services.makeChecker = &MakeEvaluatorChecker;
  return services;
}

}  // namespace velmora::graph
