#include "system_clipboard_text.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>

bool SystemClipboardText::HasText() const {
    const QMimeData *data = QGuiApplication::clipboard()->mimeData(QClipboard::Clipboard);
    return data != nullptr && data->hasText();
}

QString SystemClipboardText::Text() const { return QGuiApplication::clipboard()->text(QClipboard::Clipboard); }

void SystemClipboardText::SetText(const QString &text) {
    QGuiApplication::clipboard()->setText(text, QClipboard::Clipboard);
}
