#pragma once

#include <string>

namespace velmora::platform {

// What other windows hand to MathPad: text at the end of its document, text
// at its cursor, a new document, or a file to open.
class MathPadTarget {
 public:
  virtual ~MathPadTarget() = default;

  // Appends plain text (lines may end in CR LF) to what the document holds.
  virtual void AppendText(const std::string& text) = 0;
  // Inserts plain text at the cursor; a non-empty font name sets the font of
  // the inserted text.
  virtual void InsertText(const std::string& text, const std::string& fontName) = 0;
  // Starts a new document holding the text (after the usual question about
  // unsaved changes).
  virtual void NewDocument(const std::string& text) = 0;
  // Opens a file as MathPad's Open does.
  virtual void OpenFile(const std::string& path) = 0;
};

}  // namespace velmora::platform
