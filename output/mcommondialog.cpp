#include "output/mcommondialog.h"

#include <filesystem>
#include <system_error>

namespace velmora::output {
namespace {

ChosenFile Chosen(const std::filesystem::path& path) { return {path.string(), path.filename().string()}; }

}  // namespace

std::string mCommonDialog::NormaliseFilter(std::string_view filter) {
  std::string out(filter);
  for (char& c : out) {
    if (c == ':') c = '|';
  }
  // A trailing separator ends the list and names nothing.
  while (!out.empty() && out.back() == '|') out.pop_back();
  return out;
}

std::string mCommonDialog::ReplaceQuestion(std::string_view fileName) {
  std::string text(fileName);
  text += kReplaceQuestion;
  return text;
}

std::optional<ChosenFile> mCommonDialog::VBGetSaveFileName(platform::FileDialog& files,
                                                           base::MessageBox& messages,
                                                           const FileRequest& request) {
  const auto answer =
      files.Save(request.title, NormaliseFilter(request.filter), request.initialDir, request.fileName);
  if (!answer || answer->empty()) return std::nullopt;
  std::filesystem::path path(*answer);
  if (!path.has_extension() && !request.defaultExt.empty()) path += "." + request.defaultExt;
  std::error_code error;
  if (request.askReplace && std::filesystem::exists(path, error)) {
    const auto reply = messages.Show(ReplaceQuestion(path.string()), std::string(kReplaceTitle),
                                     base::MsgIcon::Exclamation, base::MsgButtons::YesNo);
    if (reply != base::MsgResult::Yes) return std::nullopt;
  }
  return Chosen(path);
}

std::optional<ChosenFile> mCommonDialog::VBGetOpenFileName(platform::FileDialog& files,
                                                           const FileRequest& request) {
  const auto answer = files.Open(request.title, NormaliseFilter(request.filter), request.initialDir);
  if (!answer || answer->empty()) return std::nullopt;
  return Chosen(std::filesystem::path(*answer));
}

}  // namespace velmora::output
