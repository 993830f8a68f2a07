#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>

#include "expr/formulamachine.h"

// The formula engine's memory of compiled shapes. A plot sets one formula per
// pixel column, all of one shape ("SIN((#))"), so after the first sample the
// compiled program is found here and only the literal values change.
namespace velmora::expr {

class ShapeCache {
 public:
  // A formula that did not compile is remembered as nullopt, so a bad text
  // repeated per sample costs no more than a good one.
  using Entry = std::optional<Program>;

  // At most `capacity` shapes (at least 1), none longer than `maxShapeLength`:
  // a longer formula is compiled afresh each time rather than kept, so
  // neither random input nor huge texts make the cache grow without bound.
  explicit ShapeCache(std::size_t capacity = 512, std::size_t maxShapeLength = 4096);

  // The entry of a shape, or nullptr when it is not cached. The last shape
  // found is checked first, with no hashing: the plot's usual case.
  const Entry* Find(const std::string& shape);

  // Stores the entry of a shape and returns it; nullptr when the shape is too
  // long to keep. When the cache is full, one other shape is dropped first.
  // The returned pointer stays valid until the next Insert or Clear.
  const Entry* Insert(const std::string& shape, Entry entry);

  bool Fits(std::string_view shape) const { return shape.size() <= maxShapeLength_; }
  std::size_t Size() const { return map_.size(); }
  std::size_t Capacity() const { return capacity_; }
  void Clear();

 private:
  using Map = std::unordered_map<std::string, Entry>;

  std::size_t capacity_;
  std::size_t maxShapeLength_;
  Map map_;
  Map::iterator last_;
  bool hasLast_ = false;
};

}  // namespace velmora::expr
