#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>

#include "platform/filedialog.h"
#include "platform/inputbox.h"
#include "platform/messagebox.h"
#include "platform/recentlist.h"
#include "platform/settingsstore.h"
#include "platform/shellopen.h"
#include "rtf/document.h"

namespace velmora::mathpad {

// What MathPad's file commands need of the editor window.
class PadView {
 public:
  virtual ~PadView() = default;
  virtual rtf::Document Content() const = 0;
  // Replaces the document; the editor reports the change back through
  // PadFile::ContentChanged as for any edit.
  virtual void SetContent(const rtf::Document& document) = 0;
  virtual void ShowCaption(const std::string& caption) = 0;
  virtual void ShowFileName(const std::string& name) = 0;
  virtual void ShowSize(const std::string& text) = 0;
  // The recent files menu shows the list's captions again.
  virtual void ShowRecent(const platform::RecentList& list) = 0;
};

struct PadServices {
  platform::MessageBox* messages = nullptr;     // required
  platform::FileDialog* files = nullptr;        // required
  platform::InputBox* input = nullptr;          // required
  platform::SettingsStore* settings = nullptr;  // required
  platform::ShellLauncher* shell = nullptr;     // null: Send to Email finds no mail program
  // Writes a file atomically; empty: base::WriteFileAtomically.
  std::function<bool(const std::string& path, const std::string& bytes)> write;
  // The full path of a program on the search path, or nothing; empty: PATH
  // is searched.
  std::function<std::optional<std::string>(const std::string& program)> findProgram;
};

// MathPad's document as a file: New, Open, Save, Save As, Revert, the
// recent files, the close question and Send to Email, with their questions
// and the caption, file and size panels. `Dirty` is set by any change of the
// document and cleared by New, Open and Save.
class PadFile {
 public:
  PadFile(PadView& view, PadServices services);

  // The load of the window: the recent list, and an untitled document.
  void Load();

  bool Dirty() const { return dirty_; }
  // The file panel's text: the file's path, or "Untitled".
  const std::string& FileName() const { return fileName_; }
  const platform::RecentList& Recent() const { return recent_; }

  // Any change of the document: sets Dirty and shows the text's size.
  void ContentChanged(std::uint64_t textLength);

  void New();
  // Asks for a file and opens it; false when nothing was opened.
  bool Open();
  // Opens a file without a question (the recent list, other windows).
  bool OpenPath(const std::string& path);
  // Entry i (1 to 8) of the recent list.
  void OpenRecent(int i);
  bool Save();
  bool SaveAs();
  void Revert();
  // The close question; true when the window may close.
  bool QueryClose();
  void SendToEmail();

 private:
  bool SaveTo(const std::string& path);
  void ShowFile(const std::string& path, std::uint64_t fileLength);
  void Error(const std::string& text);

  PadView& view_;
  PadServices services_;
  platform::RecentList recent_;
  bool dirty_ = false;
  std::string fileName_;
};

// The full path of a program on $PATH, or nothing.
std::optional<std::string> FindOnPath(const std::string& program);

}  // namespace velmora::mathpad
