#include "graph/tangentrequest.h"

namespace velmora::graph {

TangentRequest TangentRequest::Cartesian(bool normal, std::string x, std::string slope,
                                         std::string function) {
  TangentRequest r;
  r.tngenta_ = !normal;
  r.normalka_ = normal;
  r.tngentaX_ = std::move(x);
  r.slopka_ = std::move(slope);
  r.fjaT_ = std::move(function);
  return r;
}

TangentRequest TangentRequest::Parametric(bool normal, std::string k, std::string y, std::string x,
                                          std::string function) {
  TangentRequest r;
  r.tngentaP_ = !normal;
  r.normalkaP_ = normal;
  r.tngentaXP_ = std::move(k);
  r.fja1P_ = std::move(y);
  r.fja2P_ = std::move(x);
  r.fjaTP_ = std::move(function);
  return r;
}

}  // namespace velmora::graph
