#include "output/jpegwriter.h"

#include <jpeglib.h>

#include <csetjmp>
#include <cstdio>
#include <cstdlib>
#include <memory>

namespace velmora::output {
namespace {

// libjpeg reports a fatal error by calling error_exit, which must not
// return: it jumps back to the writer with the library's text.
struct ErrorManager {
  jpeg_error_mgr base;
  std::jmp_buf jump;
  char text[JMSG_LENGTH_MAX];
  int code;
};

void ErrorExit(j_common_ptr info) {
  auto* manager = reinterpret_cast<ErrorManager*>(info->err);
  manager->code = manager->base.msg_code;
  (*info->err->format_message)(info, manager->text);
  std::longjmp(manager->jump, 1);
}

void NoOutput(j_common_ptr) {}

struct FileCloser {
  void operator()(std::FILE* file) const {
    if (file != nullptr) std::fclose(file);
  }
};

// The encode itself. `file` or the memory target is set up by the caller;
// returns false with the manager's text on a library error. Kept free of
// objects with destructors between setjmp and longjmp.
bool Encode(const cDIBSection& picture, int quality, std::FILE* file, unsigned char** memory,
            unsigned long* memorySize, ErrorManager& errors) {
  jpeg_compress_struct info{};
  info.err = jpeg_std_error(&errors.base);
  errors.base.error_exit = ErrorExit;
  errors.base.output_message = NoOutput;
  errors.text[0] = '\0';
  errors.code = 0;
  if (setjmp(errors.jump) != 0) {
    jpeg_destroy_compress(&info);
    return false;
  }
  jpeg_create_compress(&info);
  if (file != nullptr) {
    jpeg_stdio_dest(&info, file);
  } else {
    jpeg_mem_dest(&info, memory, memorySize);
  }
  info.image_width = static_cast<JDIMENSION>(picture.Width());
  info.image_height = static_cast<JDIMENSION>(picture.Height());
  info.input_components = 3;
  info.in_color_space = JCS_EXT_BGR;
  jpeg_set_defaults(&info);
  jpeg_set_quality(&info, quality, TRUE);
  jpeg_start_compress(&info, TRUE);
  while (info.next_scanline < info.image_height) {
    auto* row = const_cast<JSAMPROW>(picture.Row(static_cast<int>(info.next_scanline)));
    jpeg_write_scanlines(&info, &row, 1);
  }
  jpeg_finish_compress(&info);
  jpeg_destroy_compress(&info);
  return true;
}

std::string LibraryError(const ErrorManager& errors) {
  return "Failed to save to JPG " + std::to_string(errors.code) + " " + errors.text;
}

}  // namespace

JpegResult SaveJPG(const cDIBSection& picture, const std::string& fileName, int quality) {
  if (picture.DIBSectionBitsPtr() == nullptr) return {false, "Failed to save to JPG: no picture"};
  std::unique_ptr<std::FILE, FileCloser> file(std::fopen(fileName.c_str(), "wb"));
  if (!file) return {false, "Failed to save to JPG: cannot open " + fileName};
  ErrorManager errors{};
  if (!Encode(picture, quality, file.get(), nullptr, nullptr, errors)) return {false, LibraryError(errors)};
  if (std::fflush(file.get()) != 0 || std::ferror(file.get()) != 0) {
    return {false, "Failed to save to JPG: cannot write " + fileName};
  }
  if (std::fclose(file.release()) != 0) return {false, "Failed to save to JPG: cannot write " + fileName};
  return {true, {}};
}

JpegResult EncodeJPG(const cDIBSection& picture, int quality, std::string& bytes) {
  bytes.clear();
  if (picture.DIBSectionBitsPtr() == nullptr) return {false, "Failed to save to JPG: no picture"};
  unsigned char* memory = nullptr;
  unsigned long size = 0;
  ErrorManager errors{};
  const bool ok = Encode(picture, quality, nullptr, &memory, &size, errors);
  if (ok && memory != nullptr) bytes.assign(reinterpret_cast<const char*>(memory), size);
  std::free(memory);
  if (!ok) return {false, LibraryError(errors)};
  return {true, {}};
}

std::string SaveFailedText(std::string_view fileName) {
  std::string text = "Failed to save the picture to the file: '";
  text += fileName;
  text += "'";
  return text;
}

}  // namespace velmora::output
