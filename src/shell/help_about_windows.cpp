#include "help_about_windows.h"

#include "common_error_handler.h"
#include "frm_credits.h"
#include "main_menu.h"
#include "product_identity.h"
#include "transformer.h"
#include "translation.h"

#include <QAction>
#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QJsonObject>
#include <QMenu>
#include <QPluginLoader>

namespace {
QString line(const QString &name, const QString &version) { return name + QStringLiteral(" - ") + version; }

// Nothing for a library that is no plug-in of ours.
void addPlugin(QStringList &lines, const QFileInfo &file) {
    const QJsonObject own = QPluginLoader(file.filePath()).metaData().value(QStringLiteral("MetaData")).toObject();
    if (const QString version = own.value(QStringLiteral("version")).toString(); !version.isEmpty())
        lines << line(file.fileName(), version);
}
} // namespace

HelpAboutWindows::HelpAboutWindows(Transformer &transformer, const Translation &translation, const MainMenu &menu,
                                   QWidget &window, ErrorReport &errors)
    : mTransformer(transformer), mTranslation(translation), mMenu(menu), mWindow(window), mErrors(errors) {}

void HelpAboutWindows::mnuAbout_Click() try { frmAbout(AboutFacts(), &mWindow).exec(); }
ERROR_TAIL()

void HelpAboutWindows::ShowCredits() try {
    frmCredits([this](const QString &text) { return mTranslation.NLSStr(text); }, &mWindow).exec();
}
ERROR_TAIL_AS("TransformerEvents_ShowCredits")

frmAbout::Facts HelpAboutWindows::AboutFacts() const {
    return {mTranslation.NLSStr(ProductIdentity::title()),
            mTranslation.NLSStr(QStringLiteral("Version")) + u' ' + ProductIdentity::shortVersion(),
            mTranslation.NLSStr(QStringLiteral("Access")) + u' ' + accessLevel(), FileVersions(),
            mTranslation.NLSStr(QStringLiteral("OK"))};
}

QString HelpAboutWindows::accessLevel() const {
    for (const QAction *entry : mMenu.Menu(QStringLiteral("mnuAccessLevelOption")).actions()) {
        if (entry->isChecked())
            return QString(entry->text()).remove(u'&');
    }
    return {};
}

QStringList HelpAboutWindows::FileVersions() const {
    const QDir folder(QCoreApplication::applicationDirPath());
    QStringList lines{
        line(QFileInfo(QCoreApplication::applicationFilePath()).fileName(), ProductIdentity::fullVersion())};
    if (const QString inUse = qEnvironmentVariable("KX4600_TRANSFORMER"); !inUse.isEmpty())
        addPlugin(lines, QFileInfo(inUse));
    for (const char *place : {".", "plugins", "../lib/kx4600"}) {
        const QDir plugins(folder.filePath(QString::fromLatin1(place)));
        for (const QFileInfo &file : plugins.entryInfoList({QStringLiteral("*.so")}, QDir::Files, QDir::Name))
            addPlugin(lines, file);
    }
    lines << line(QStringLiteral("Qt"), QString::fromLatin1(qVersion()))
          << line(mTranslation.NLSStr(QStringLiteral("Database")), mTransformer.GetDatabaseVersion());
    return lines;
}
