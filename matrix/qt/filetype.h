#pragma once

#include <QString>

namespace velmora::matrix_qt {

// The desktop type of matrix files and the entry that opens them.
inline constexpr const char* kMatrixMimeType = "application/x-velmora-matrix";
inline constexpr const char* kMatrixDesktopEntry = "velmora-matrix.desktop";

// The shared-mime-info package of a type: its name, a comment and the glob
// of the extension ("mcf" gives "*.mcf").
QString MimePackageXml(const QString& mimeType, const QString& extension);

// The per-user desktop entry that opens files of the type with `program`
// (the file's path takes the place of %f). Hidden from the menus: the
// program's own entry stands there.
QString OpenWithEntry(const QString& program, const QString& mimeType);

// Registers a file extension to the program for the current user: the MIME
// type (xdg-mime install --mode user, under $XDG_DATA_HOME/mime), the desktop
// entry $XDG_DATA_HOME/applications/velmora-matrix.desktop that runs
// `program`, and that entry as the type's default application (xdg-mime
// default, in $XDG_CONFIG_HOME/mimeapps.list). True when every step
// succeeded; a missing xdg-mime or an unwritable folder gives false.
bool RegisterFileType(const QString& extension, const QString& program);

}  // namespace velmora::matrix_qt
