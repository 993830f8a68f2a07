#pragma once

#include <string_view>

// MathPad's fixed texts: captions, titles, questions and messages, as the
// user sees them (the odd spellings are the program's own).
namespace velmora::mathpad::texts {

inline constexpr std::string_view kUntitledCaption = "MathPad - Untitled";
inline constexpr std::string_view kFileCaptionPrefix = "Bekrak - ";
inline constexpr std::string_view kUntitled = "Untitled";
inline constexpr std::string_view kTitle = "MathPad";

inline constexpr std::string_view kOpenTitle = "Open";
inline constexpr std::string_view kSaveAsTitle = "Save As";
inline constexpr std::string_view kFileFilter =
    "Simple Text (*.txt)|*.txt|Rich Text Format (*.rtf)|*.rtf|All Files (*.*)|*.*";
inline constexpr std::string_view kImageTitle = "Insert Image";
inline constexpr std::string_view kImageFilter =
    "Images (*.bmp;*.jpg;*.jpeg;*.gif;*.wmf)|*.bmp;*.jpg;*.jpeg;*.gif;*.wmf|Bitmap (*.bmp)|*.bmp|Windows "
    "Metafiles (*.wmf)|*.wmf|JPG (*.jpg)|*.jpg;*.jpeg|GIF (*.gif)|*.gif|All Files (*.*)|*.*";

inline constexpr std::string_view kSaveChangesTo = "Do you want to save the changes to ";
inline constexpr std::string_view kSaveChanges = "Do you want to save the changes?";
inline constexpr std::string_view kRevert = "Revert to last saved version?";
inline constexpr std::string_view kCloseQuestion = "Save changes before closing?";
inline constexpr std::string_view kCloseTitle = "Save Changes";

inline constexpr std::string_view kEmailTitle = "Send to Email";
inline constexpr std::string_view kSaveFirst = "Save document before you proceed.";
inline constexpr std::string_view kRecipientTitle = "Send to email";
inline constexpr std::string_view kRecipientPrompt = "Please, type recipient email adress.";
inline constexpr std::string_view kNoMailProgram =
    "No mail program was found: xdg-email (package xdg-utils) hands the document to the desktop's mail "
    "program.";
inline constexpr std::string_view kMailFailed = "The mail program could not be started.";

inline constexpr std::string_view kNothingToPrint = "Nothing to print.";
inline constexpr std::string_view kCannotRead = "The file could not be read: ";
inline constexpr std::string_view kCannotWrite = "The file could not be saved; the old file is unchanged: ";
inline constexpr std::string_view kImageUnreadable =
    "This picture cannot be inserted: its format (Windows metafiles among them) is not one this version can "
    "read.";

}  // namespace velmora::mathpad::texts
