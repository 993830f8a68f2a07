#pragma once

#include <string>

namespace velmora::graph {

// A request of a tangent or a normal, as its dialog hands it to the window:
// which kind, at which point, and the texts the history record names.
class TangentRequest {
 public:
  // A tangent (or a normal) of a Cartesian function at X.
  static TangentRequest Cartesian(bool normal, std::string x, std::string slope, std::string function);
  // A tangent (or a normal) of a parametric function at K.
  static TangentRequest Parametric(bool normal, std::string k, std::string y, std::string x,
                                   std::string function);

  // `Tngenta`, `Normalka`: a Cartesian tangent, a Cartesian normal.
  bool Tngenta() const { return tngenta_; }
  bool Normalka() const { return normalka_; }
  // `TngentaP`, `NormalkaP`: a parametric tangent, a parametric normal.
  bool TngentaP() const { return tngentaP_; }
  bool NormalkaP() const { return normalkaP_; }
  // `TngentaX`: the X of the Cartesian point; `TngentaXP`: the K of the
  // parametric one.
  const std::string& TngentaX() const { return tngentaX_; }
  const std::string& TngentaXP() const { return tngentaXP_; }
  // `Slopka`: the slope as text.
  const std::string& Slopka() const { return slopka_; }
  // `fjaT`: the Cartesian function; `fja1P`, `fja2P`: the parametric Y (K)
  // and X (K); `fjaTP`: the parametric function as the dialog shows it.
  const std::string& fjaT() const { return fjaT_; }
  const std::string& fja1P() const { return fja1P_; }
  const std::string& fja2P() const { return fja2P_; }
  const std::string& fjaTP() const { return fjaTP_; }

  // The slope of the drawn line, once it is known.
  void SetSlopka(std::string slope) { slopka_ = std::move(slope); }

  // A finished plot ends a Cartesian request; a parametric one stays.
  void EndCartesian() {
    tngenta_ = false;
    normalka_ = false;
  }

 private:
  bool tngenta_ = false;
  bool tngentaP_ = false;
  bool normalka_ = false;
  bool normalkaP_ = false;
  std::string tngentaX_;
  std::string tngentaXP_;
  std::string slopka_;
  std::string fjaT_;
  std::string fja1P_;
  std::string fja2P_;
  std::string fjaTP_;
};

}  // namespace velmora::graph
