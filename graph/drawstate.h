#pragma once

#include <string>

namespace velmora::graph {

// Where a graph window stands with its drawing: whether a plot runs or has
// run, the stop request, the count of drawn functions and the X range of the
// last Cartesian plot.
class DrawState {
 public:
  // `Drawing`: a plot is running; nearly every command does nothing while
  // it is set. Only a DrawingGuard sets and clears it.
  bool Drawing() const { return drawing_; }
  // `StopCrtanje`: a request to leave the plot loop (Esc, the progress label).
  bool StopCrtanje() const { return stopCrtanje_; }
  void RequestStop() { stopCrtanje_ = true; }
  void ClearStop() { stopCrtanje_ = false; }
  // `Plotted`: a plot has finished; the right-button trace needs one.
  bool Plotted() const { return plotted_; }
  void SetPlotted() { plotted_ = true; }
  // `KolkoFunkc`: functions drawn since the window was last cleared; the
  // replay walks back this many entries of the list.
  int KolkoFunkc() const { return kolkoFunkc_; }
  void CountFunction() { ++kolkoFunkc_; }
  void SetKolkoFunkc(int count) { kolkoFunkc_ = count; }
  // `Zezaj`: the window is new, or a command is changing it.
  bool Zezaj() const { return zezaj_; }
  void SetZezaj(bool changing) { zezaj_ = changing; }
  // `Xpoc`, `Xkraj`: the first and last plotted X of the last Cartesian
  // plot in user units, the move taken off; the value table runs between them.
  double Xpoc() const { return xpoc_; }
  double Xkraj() const { return xkraj_; }
  void SetXpoc(double x) { xpoc_ = x; }
  void SetXkraj(double x) { xkraj_ = x; }
  // `FuncY`, `FuncX`: the working copies of the expressions a plot samples.
  const std::string& FuncY() const { return funcY_; }
  const std::string& FuncX() const { return funcX_; }
  void SetFunctions(std::string y, std::string x) {
    funcY_ = std::move(y);
    funcX_ = std::move(x);
  }

 private:
  friend class DrawingGuard;
  bool drawing_ = false;
  bool stopCrtanje_ = false;
  bool plotted_ = false;
  int kolkoFunkc_ = 0;
  bool zezaj_ = true;
  double xpoc_ = 0;
  double xkraj_ = 0;
  std::string funcY_;
  std::string funcX_;
};

}  // namespace velmora::graph
