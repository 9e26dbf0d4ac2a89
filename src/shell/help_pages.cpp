#include "help_pages.h"

#include <QDir>
#include <QFileInfo>

QString HelpPages::folderOf(const QString &file) {
    const QFileInfo info(file);
    QString beside = info.path() + u'/' + info.completeBaseName();
    if (QFileInfo(beside).isDir())
        return beside;
    return QDir::cleanPath(info.path() + QStringLiteral("/../share/kx4600/") + info.completeBaseName());
}

QString HelpPages::pageOfTopic(qint32 number) { return QStringLiteral("%1.html").arg(number); }

QString HelpPages::pageOfForm(const QString &typeName) { return typeName + QStringLiteral(".html"); }
