#include "console.h"

#include <unistd.h>

namespace {
void writeTo(std::FILE *stream, const QByteArray &bytes) {
    std::fwrite(bytes.constData(), 1, std::size_t(bytes.size()), stream);
    std::fflush(stream);
}
} // namespace

void Console::line(const QString &text) const { writeTo(stdout, text.toUtf8() + '\n'); }

void Console::text(const QByteArray &utf8) const { writeTo(stdout, utf8); }

void Console::json(const QJsonDocument &document) const { writeTo(stdout, document.toJson(QJsonDocument::Indented)); }

void Console::message(const QString &text) const { writeTo(stderr, text.toUtf8() + '\n'); }

void Console::progress(const QString &text) {
    if (::isatty(STDERR_FILENO) == 0) {
        if (!text.isEmpty())
            message(text);
        return;
    }
    if (!text.isEmpty())
        writeTo(stderr, "\r\033[K" + text.toUtf8());
    else if (mProgressOpen)
        writeTo(stderr, "\n");
    mProgressOpen = !text.isEmpty();
}
