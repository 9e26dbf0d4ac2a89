#pragma once

#include <QtGlobal>

// The standard message box flags and answers that cross the component's boundary.
namespace MessageStyle {
inline constexpr qint32 kOkOnly = 0;
inline constexpr qint32 kOkCancel = 1;
inline constexpr qint32 kAbortRetryIgnore = 2;
inline constexpr qint32 kYesNoCancel = 3;
inline constexpr qint32 kYesNo = 4;
inline constexpr qint32 kRetryCancel = 5;
inline constexpr qint32 kCritical = 16;
inline constexpr qint32 kQuestion = 32;
inline constexpr qint32 kExclamation = 48;
inline constexpr qint32 kInformation = 64;
} // namespace MessageStyle

namespace MessageAnswer {
inline constexpr qint32 kNone = 0;
inline constexpr qint32 kOk = 1;
inline constexpr qint32 kCancel = 2;
inline constexpr qint32 kAbort = 3;
inline constexpr qint32 kRetry = 4;
inline constexpr qint32 kIgnore = 5;
inline constexpr qint32 kYes = 6;
inline constexpr qint32 kNo = 7;
} // namespace MessageAnswer
