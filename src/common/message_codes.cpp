#include "message_codes.h"

#include "message_style.h"

#include <array>

using namespace MessageButton;

qint32 ReturnNLSButtons(qint32 flags) {
    // By the low three bits of the flags; 5 (retry, cancel) has no code of its own.
    constexpr std::array<qint32, 8> kCodes{
        kOk, kOk | kCancel, kAbort | kRetry | kIgnore, kYes | kNo | kCancel, kYes | kNo, kOk, kYes, kOk};
    return kCodes.at(std::size_t(flags & 7));
}

qint32 ReturnNLSDialogType(qint32 flags) {
    if (flags < MessageStyle::kQuestion)
        return MessageIcon::kError;
    if (flags < MessageStyle::kExclamation)
        return MessageIcon::kQuestion;
    if (flags < MessageStyle::kInformation)
        return MessageIcon::kWarning;
    return MessageIcon::kInformation;
}
