#pragma once

#include "app/graphchild.h"
#include "graph/qt/frmfunc.h"

namespace velmora::app {

// A graph window seen through the frame's commands.
class GraphChildAdapter final : public GraphChild {
 public:
  explicit GraphChildAdapter(graph_qt::FrmFunc& window) : window_(window) {}

  graph::GraphWindow& Logic() override { return window_.Logic(); }
  void DrawFunction() override { window_.DrawFunction(); }
  void SwapYX() override { window_.SwapYX(); }
  void Kopirajgraf() override { window_.Kopirajgraf(); }
  void Sav1() override { window_.Sav1(); }
  void ColourMenu(int index) override { window_.ColourMenu(index); }
  void mnuPlotWidth() override { window_.mnuPlotWidth(); }
  void ClearAll() override { window_.ClearAll(); }
  void ClearScreen() override { window_.ClearScreen(); }
  void mnuclhistory() override { window_.mnuclhistory(); }
  void ClearGrid() override { window_.ClearGrid(); }
  void RedrawGrid() override { window_.RedrawGrid(); }
  void ClearFju() override { window_.ClearFju(); }
  void OpenPlottingOptions() override { window_.OpenPlottingOptions(); }
  void mnuDrawTangent() override { window_.mnuDrawTangent(); }
  void mnuDrawIntegral(bool fromToolbar) override { window_.mnuDrawIntegral(fromToolbar); }
  void CrtajFJUDeriv() override { window_.CrtajFJUDeriv(); }
  void mnulabel() override { window_.mnulabel(); }
  void mnusaveHistory() override { window_.mnusaveHistory(); }
  void SyncFromLogic() override { window_.SyncFromLogic(); }

 private:
  graph_qt::FrmFunc& window_;
};

}  // namespace velmora::app
