#include "file_drop.h"

#include <QFileInfo>
#include <QMimeData>
#include <QUrl>

QString FileDrop::firstFile(const QMimeData *data) {
    if (data == nullptr || !data->hasUrls() || data->urls().isEmpty())
        return {};
    return data->urls().constFirst().toLocalFile();
}

bool FileDrop::isAcceptable(const QMimeData *data) {
    const QString file = firstFile(data);
    return !file.isEmpty() && !QFileInfo(file).isDir();
}
