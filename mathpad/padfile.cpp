#include "mathpad/padfile.h"

#include <cstdlib>
#include <filesystem>
#include <system_error>

#include "base/asciicase.h"
#include "base/atomicfile.h"
#include "mathpad/documentfile.h"
#include "mathpad/padlogic.h"
#include "mathpad/padtexts.h"

namespace velmora::mathpad {

namespace {

using platform::MsgButtons;
using platform::MsgIcon;
using platform::MsgResult;

std::string Str(std::string_view text) { return std::string(text); }

std::uint64_t FileLength(const std::string& path) {
  std::error_code error;
  const auto size = std::filesystem::file_size(path, error);
  return error ? 0 : size;
}

// A word for QProcess-style splitting: in double quotes, a quote inside
// written as three.
std::string Quoted(const std::string& word) {
  std::string out = "\"";
  for (const char c : word) out += c == '"' ? std::string("\"\"\"") : std::string(1, c);
  return out + "\"";
}

}  // namespace

std::optional<std::string> FindOnPath(const std::string& program) {
  const char* path = std::getenv("PATH");
  if (path == nullptr) return std::nullopt;
  const std::string folders = path;
  std::size_t start = 0;
  while (start <= folders.size()) {
    const std::size_t end = std::min(folders.find(':', start), folders.size());
    const std::string folder = folders.substr(start, end - start);
    if (!folder.empty()) {
      const std::filesystem::path candidate = std::filesystem::path(folder) / program;
      std::error_code error;
      if (std::filesystem::is_regular_file(candidate, error)) return candidate.string();
    }
    start = end + 1;
  }
  return std::nullopt;
}

PadFile::PadFile(PadView& view, PadServices services)
    : view_(view),
      services_(std::move(services)),
      recent_(*services_.settings, platform::RecentList::kMathPad),
      fileName_(texts::kUntitled) {}

void PadFile::Load() {
  recent_.LoadRecent();
  recent_.ShowRecent();
  view_.ShowRecent(recent_);
  view_.ShowCaption(Str(texts::kUntitledCaption));
  view_.ShowFileName(fileName_);
  view_.ShowSize(SizePanelText(0));
}

void PadFile::ContentChanged(std::uint64_t textLength) {
  dirty_ = true;
  view_.ShowSize(SizePanelText(textLength));
}

void PadFile::Error(const std::string& text) {
  services_.messages->Show(text, Str(texts::kTitle), MsgIcon::Critical, MsgButtons::Ok);
}

void PadFile::New() {
  if (dirty_) {
    const MsgResult answer =
        services_.messages->Show(Str(texts::kSaveChangesTo) + fileName_ + "?", Str(texts::kTitle),
                                 MsgIcon::Exclamation, MsgButtons::YesNoCancel);
    if (answer == MsgResult::Cancel) return;
    if (answer == MsgResult::Yes && !Save()) return;
  }
  view_.SetContent(rtf::Document{});
  dirty_ = false;
  fileName_ = Str(texts::kUntitled);
  view_.ShowFileName(fileName_);
  view_.ShowSize(SizePanelText(0));
  view_.ShowCaption(Str(texts::kUntitledCaption));
}

void PadFile::ShowFile(const std::string& path, std::uint64_t fileLength) {
  fileName_ = path;
  view_.ShowCaption(CaptionFor(path));
  view_.ShowFileName(path);
  view_.ShowSize(SizePanelText(fileLength));
  recent_.AddRecent(path);
  view_.ShowRecent(recent_);
}

bool PadFile::Open() {
  const auto path = services_.files->Open(Str(texts::kOpenTitle), Str(texts::kFileFilter), "");
  if (!path || path->empty()) return false;
  return OpenPath(*path);
}

bool PadFile::OpenPath(const std::string& path) {
  const auto document = LoadDocument(path);
  if (!document) {
    Error(Str(texts::kCannotRead) + path);
    return false;
  }
  view_.SetContent(*document);
  dirty_ = false;
  ShowFile(path, FileLength(path));
  return true;
}

void PadFile::OpenRecent(int i) {
  if (i < 1 || i > platform::RecentList::kEntries) return;
  const std::string path = recent_.Caption(i);
  if (path.empty()) return;
  if (dirty_) {
    const MsgResult answer = services_.messages->Show(Str(texts::kSaveChanges), Str(texts::kTitle),
                                                      MsgIcon::Exclamation, MsgButtons::YesNoCancel);
    if (answer == MsgResult::Cancel) return;
    if (answer == MsgResult::Yes && !Save()) return;
  }
  OpenPath(path);
}

bool PadFile::SaveTo(const std::string& path) {
  const std::string bytes = DocumentBytes(view_.Content(), path);
  const bool written =
      services_.write ? services_.write(path, bytes) : base::WriteFileAtomically(path, bytes);
  if (!written) {
    Error(Str(texts::kCannotWrite) + path);
    return false;
  }
  dirty_ = false;
  return true;
}

bool PadFile::Save() {
  if (IsUntitledName(fileName_)) return SaveAs();
  if (!SaveTo(fileName_)) return false;
  view_.ShowSize(SizePanelText(FileLength(fileName_)));
  return true;
}

bool PadFile::SaveAs() {
  const auto path = services_.files->Save(Str(texts::kSaveAsTitle), Str(texts::kFileFilter), "",
                                          IsUntitledName(fileName_) ? "" : fileName_);
  if (!path || path->empty()) return false;
  if (!SaveTo(*path)) return false;
  ShowFile(*path, FileLength(*path));
  return true;
}

void PadFile::Revert() {
  if (services_.messages->Show(Str(texts::kRevert), Str(texts::kTitle), MsgIcon::Question,
                               MsgButtons::YesNo) != MsgResult::Yes) {
    return;
  }
  if (fileName_.empty() || IsUntitledName(fileName_)) return;
  // Rich text when the name ends in "RTF", with or without the dot.
  const bool rich = fileName_.size() >= 3 && base::UpperCase(fileName_.substr(fileName_.size() - 3)) == "RTF";
  const auto document = LoadDocument(fileName_, rich);
  if (!document) {
    Error(Str(texts::kCannotRead) + fileName_);
    return;
  }
  view_.SetContent(*document);
}

bool PadFile::QueryClose() {
  if (!dirty_) return true;
  const MsgResult answer = services_.messages->Show(Str(texts::kCloseQuestion), Str(texts::kCloseTitle),
                                                    MsgIcon::Question, MsgButtons::YesNoCancel);
  if (answer == MsgResult::Cancel) return false;
  if (answer == MsgResult::Yes) return Save();
  return true;
}

void PadFile::SendToEmail() {
  if (IsUntitledName(fileName_)) {
    services_.messages->Show(Str(texts::kSaveFirst), Str(texts::kEmailTitle), MsgIcon::Exclamation,
                             MsgButtons::Ok);
    return;
  }
  if (dirty_ && services_.messages->Show(Str(texts::kSaveFirst), Str(texts::kEmailTitle), MsgIcon::Question,
                                         MsgButtons::YesNo) == MsgResult::Yes) {
    if (!Save()) return;
  }
  const std::string address =
      services_.input->Ask(Str(texts::kRecipientPrompt), Str(texts::kRecipientTitle), "").value_or("");
  if (address.empty()) return;
  const auto program = services_.findProgram ? services_.findProgram("xdg-email") : FindOnPath("xdg-email");
  if (!program || services_.shell == nullptr) {
    services_.messages->Show(Str(texts::kNoMailProgram), Str(texts::kEmailTitle), MsgIcon::Exclamation,
                             MsgButtons::Ok);
    return;
  }
  const std::string parameters = "--attach " + Quoted(fileName_) + " " + Quoted(address);
  // The mail program runs as a program whatever its name looks like.
  const int number = services_.shell->Execute(*program, parameters, "", "open", true);
  if (number <= 32) {
    services_.messages->Show(Str(texts::kMailFailed) + " " + platform::ShellErrorText(number),
                             Str(texts::kEmailTitle), MsgIcon::Exclamation, MsgButtons::Ok);
  }
}

}  // namespace velmora::mathpad
