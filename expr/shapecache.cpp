#include "expr/shapecache.h"

#include <algorithm>
#include <utility>

namespace velmora::expr {

ShapeCache::ShapeCache(std::size_t capacity, std::size_t maxShapeLength)
    : capacity_(std::max<std::size_t>(capacity, 1)), maxShapeLength_(maxShapeLength) {
  map_.reserve(capacity_);
}

const ShapeCache::Entry* ShapeCache::Find(const std::string& shape) {
  if (hasLast_ && last_->first == shape) return &last_->second;
  const auto it = map_.find(shape);
  if (it == map_.end()) return nullptr;
  last_ = it;
  hasLast_ = true;
  return &it->second;
}

const ShapeCache::Entry* ShapeCache::Insert(const std::string& shape, Entry entry) {
  if (!Fits(shape)) return nullptr;
  if (const auto it = map_.find(shape); it != map_.end()) {
    it->second = std::move(entry);
    last_ = it;
    hasLast_ = true;
    return &it->second;
  }
  if (map_.size() >= capacity_) {
    // Drop whichever shape the table lists first. A plot uses one shape at a
    // time, so a simple eviction serves as well as a recency list.
    map_.erase(map_.begin());
    hasLast_ = false;
  }
  const auto [it, inserted] = map_.emplace(shape, std::move(entry));
  (void)inserted;
  last_ = it;
  hasLast_ = true;
  return &it->second;
}

void ShapeCache::Clear() {
  map_.clear();
  hasLast_ = false;
}

}  // namespace velmora::expr
