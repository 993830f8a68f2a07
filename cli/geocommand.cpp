#include "cli/geocommand.h"

#include <charconv>
#include <ostream>
#include <string_view>

#include "cli/geopicture.h"
#include "cli/pictureoptions.h"
#include "cli/streammessagebox.h"
#include "geometry/boxrecord.h"
#include "geometry/catalogue.h"
#include "geometry/convertresult.h"
#include "geometry/solver.h"
#include "geometry/unitsconverter.h"
#include "platform/messagebox.h"

namespace velmora::cli {
namespace {

constexpr const char* kGeoUsage =
    "usage: velmora-cli geo FIGURE CASE VALUES... [--yes|--no]\n"
    "         [--jpeg FILE [--quality Q]] [--bmp FILE] [--pdf FILE]\n"
    "         [--width W] [--height H] [--shade] [--settings FILE]\n";

bool ParseSize(const std::string& text, int& value) {
  const auto [end, code] = std::from_chars(text.data(), text.data() + text.size(), value);
  return code == std::errc() && end == text.data() + text.size() && value >= 1 && value <= 10000;
}

void PrintBoxes(const geometry::BoxRecord& boxes, std::ostream& out) {
  for (std::size_t i = 0; i < boxes.Size(); ++i) out << boxes.NameAt(i) << '=' << boxes.TextAt(i) << '\n';
}

void ListFigures(std::ostream& err) {
  err << "figures:";
  std::string_view last;
  for (const auto& kind : geometry::FigureKinds()) {
    if (kind.word != last) err << ' ' << kind.word;
    last = kind.word;
  }
  err << '\n';
}

void ListCases(std::string_view word, std::ostream& err) {
  err << "cases of " << word << ":\n";
  for (const auto& kind : geometry::FigureKinds()) {
    if (kind.word != word) continue;
    for (const auto& e : kind.entries) err << "  " << e.name << "  \"" << e.caption << "\"\n";
  }
}

bool KnownFigure(std::string_view word) {
  for (const auto& kind : geometry::FigureKinds()) {
    if (kind.word == word) return true;
  }
  return false;
}

}  // namespace

int RunGeo(const std::vector<std::string>& args, std::istream&, std::ostream& out, std::ostream& err) {
  bool yes = false;
  std::vector<std::string> words;
  GeoPicture picture;
  for (std::size_t i = 0; i < args.size(); ++i) {
    std::string pictureError;
    switch (ReadPictureOption(args, i, picture.outputs, pictureError)) {
      case OptionRead::Read: continue;
      case OptionRead::Error: err << "velmora-cli geo: " << pictureError << '\n'; return 2;
      case OptionRead::NotMine: break;
    }
    const std::string& a = args[i];
    if (a == "--yes") {
      yes = true;
    } else if (a == "--no") {
      yes = false;
    } else if (a == "--shade") {
      picture.shade = true;
    } else if (a == "--width" || a == "--height" || a == "--settings") {
      if (i + 1 >= args.size()) {
        err << "velmora-cli geo: " << a << " needs a value\n";
        return 2;
      }
      const std::string& v = args[++i];
      if (a == "--settings") {
        picture.settings = v;
      } else if (!ParseSize(v, a == "--width" ? picture.width : picture.height)) {
        err << "velmora-cli geo: " << a << " must be a whole number from 1 to 10000\n";
        return 2;
      }
    } else {
      words.push_back(a);
    }
  }
  if (words.size() < 2) {
    err << kGeoUsage;
    ListFigures(err);
    return 2;
  }
  const std::string& word = words[0];
  if (!KnownFigure(word)) {
    err << "velmora-cli geo: unknown figure '" << word << "'\n";
    ListFigures(err);
    return 2;
  }
  const geometry::FigureKind* kind = nullptr;
  const geometry::MenuEntry* entry = geometry::FindEntry(word, words[1], &kind);
  if (entry == nullptr) {
    err << "velmora-cli geo: " << word << " has no case '" << words[1] << "'\n";
    ListCases(word, err);
    return 2;
  }
  const std::size_t given = words.size() - 2;
  if (given != entry->InputCount()) {
    err << "velmora-cli geo: " << entry->name << " takes " << entry->InputCount() << " values (\""
        << entry->caption << "\"), not " << given << '\n';
    return 2;
  }
  geometry::Figure figure{geometry::BoxRecord(kind->boxes)};
  for (std::size_t i = 0; i < given; ++i) figure.boxes.SetText(entry->inputs[i], words[i + 2]);
  StreamMessageBox box(out, "message: ", yes);
  entry->solve(figure, box);
  PrintBoxes(figure.boxes, out);
  if (figure.result.empty()) out << "result=\n";
  for (const auto& line : figure.result) out << "result=" << line << '\n';
  if (!figure.label.empty()) out << "figure: " << figure.label << '\n';
  if (!figure.note.empty()) out << "note: " << figure.note << '\n';
  if (picture.outputs.Any()) {
    std::string error;
    if (!SaveGeoPictures(word, figure, picture, error)) {
      err << "velmora-cli geo: " << error << '\n';
      return 1;
    }
  }
  return 0;
}

#ifndef VELMORA_HAVE_QT_SURFACE
bool SaveGeoPictures(std::string_view, const geometry::Figure&, const GeoPicture&, std::string& error) {
  error = "pictures need a build with Qt (VELMORA_GUI=ON); this one draws nothing";
  return false;
}
#endif

int RunConvert(const std::vector<std::string>& args, std::istream&, std::ostream& out, std::ostream& err) {
  if (args.size() != 4) {
    err << "usage: velmora-cli convert angles|areas|lengths FROM TO VALUE\n"
           "       velmora-cli convert degrees DEG MIN SEC\n";
    return 2;
  }
  StreamMessageBox box(out, "message: ", false);
  if (args[0] == "degrees") {
    geometry::BoxRecord boxes(geometry::kDegreesBoxes);
    boxes.SetText("txtDeg", args[1]);
    boxes.SetText("txtMin", args[2]);
    boxes.SetText("txtSec", args[3]);
    geometry::ConvertDegrees(boxes, box);
    PrintBoxes(boxes, out);
    return 0;
  }
  const geometry::ListPage* page = geometry::FindListPage(args[0]);
  if (page == nullptr) {
    err << "velmora-cli convert: unknown page '" << args[0] << "' (angles, areas, lengths, degrees)\n";
    return 2;
  }
  const std::size_t from = geometry::FindUnit(*page, args[1]);
  const std::size_t to = geometry::FindUnit(*page, args[2]);
  if (from == page->units.size() || to == page->units.size()) {
    err << "velmora-cli convert: unknown unit '" << (from == page->units.size() ? args[1] : args[2])
        << "'; units of " << page->word << ":\n";
    for (std::size_t i = 0; i < page->units.size(); ++i) {
      err << "  " << (i + 1) << "  " << page->units[i].key << "  \"" << page->units[i].caption << "\"\n";
    }
    return 2;
  }
  // As a user would: pick both units, then type the value.
  geometry::ListConverter converter(*page);
  converter.ChooseFrom(from, box);
  converter.ChooseTo(to, box);
  converter.Boxes().SetText(page->input, args[3]);
  converter.Convert(box);
  PrintBoxes(converter.Boxes(), out);
  return 0;
}

int RunBase(const std::vector<std::string>& args, std::istream&, std::ostream& out, std::ostream& err) {
  int index = -1;
  if (args.size() == 2) {
    const auto* end = args[0].data() + args[0].size();
    const auto [ptr, ec] = std::from_chars(args[0].data(), end, index);
    if (ec != std::errc() || ptr != end) index = -1;
  }
  if (index < 0 || index > 3) {
    err << "usage: velmora-cli base INDEX VALUE  (INDEX 0 decimal, 1 binary, 2 hexadecimal, 3 octal)\n";
    return 2;
  }
  StreamMessageBox box(out, "message: ", false);
  const auto converted = geometry::ConvertResult(args[1], index, box);
  if (converted) out << "result=" << converted->text << "\nmode=" << converted->mode << '\n';
  return 0;
}

}  // namespace velmora::cli
