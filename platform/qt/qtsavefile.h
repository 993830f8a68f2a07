#pragma once

#include <functional>

#include <QIODevice>
#include <QString>

namespace velmora::qtplatform {

// The Qt form of base::WriteFileAtomically, for data that Qt writes to a
// device itself (pictures): QSaveFile writes beside the target and renames
// it into place only when `write` answers true and every byte reached the
// disk. Otherwise the old file stays as it was, nothing is left behind, and
// false comes back.
bool SaveFileAtomically(const QString& path, const std::function<bool(QIODevice&)>& write);

}  // namespace velmora::qtplatform
