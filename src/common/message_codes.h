#pragma once

#include <QtGlobal>

// From standard message box flags (MessageStyle) to the codes of the translated box.

// The set of buttons as bits. Looks at the low three bits of the flags.
namespace MessageButton {
inline constexpr qint32 kYes = 1;
inline constexpr qint32 kNo = 2;
inline constexpr qint32 kOk = 4;
inline constexpr qint32 kCancel = 8;
inline constexpr qint32 kAbort = 16;
inline constexpr qint32 kRetry = 32;
inline constexpr qint32 kIgnore = 64;
} // namespace MessageButton
[[nodiscard]] qint32 ReturnNLSButtons(qint32 flags);

namespace MessageIcon {
inline constexpr qint32 kWarning = 0;
inline constexpr qint32 kError = 1;
inline constexpr qint32 kInformation = 2;
inline constexpr qint32 kQuestion = 3;
} // namespace MessageIcon
// Looks at the whole value of the flags: without any icon flag it is the error icon.
[[nodiscard]] qint32 ReturnNLSDialogType(qint32 flags);
