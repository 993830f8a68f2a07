#pragma once

#include <string>
#include <string_view>

#include <QString>

namespace velmora::qtplatform {

// The one conversion between the logic's texts and Qt's: the logic keeps
// UTF-8 in std::string (its own texts are ASCII), Qt keeps UTF-16. A text
// with an embedded NUL converts whole.
inline QString ToQString(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

inline std::string ToStdString(const QString& text) {
  const QByteArray bytes = text.toUtf8();
  return std::string(bytes.constData(), static_cast<std::size_t>(bytes.size()));
}

}  // namespace velmora::qtplatform
