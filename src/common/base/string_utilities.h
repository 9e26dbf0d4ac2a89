#pragma once

#include <QString>
#include <QVariant>

#include <vector>

// Free routines for strings and numbers.

// Pads on the left with fill up to width characters; never cuts.
[[nodiscard]] Q_DECL_EXPORT QString LeftPadString(const QString &text, QChar fill, int width);
// The values' text forms joined by "|", the form of the parameters of NLSFmt. An empty value stays an empty part.
[[nodiscard]] Q_DECL_EXPORT QString MakeParamString(const std::vector<QVariant> &values);
// First character of the system locale's decimal separator.
[[nodiscard]] Q_DECL_EXPORT QString DecimalSymbol();
// Replaces each "." by DecimalSymbol().
[[nodiscard]] Q_DECL_EXPORT QString LocalizeString(const QString &text);
// True in a build configured with KX_DEVELOPMENT_RUN.
[[nodiscard]] Q_DECL_EXPORT bool IsExecutingFromIDE();
// Removes U+0020 at both ends and nothing else.
[[nodiscard]] Q_DECL_EXPORT QString TrimBlanks(const QString &text);
