#include "help_browser.h"

#include <QEvent>
#include <QFile>
#include <QRegularExpression>

namespace {
QColor mixed(const QColor &one, const QColor &other, double share) {
    const auto part = [share](float from, float to) { return from + float(share) * (to - from); };
    return QColor::fromRgbF(part(one.redF(), other.redF()), part(one.greenF(), other.greenF()),
                            part(one.blueF(), other.blueF()));
}

bool isDark(const QPalette &palette) { return palette.base().color().lightnessF() < 0.5F; }
} // namespace

HelpBrowser::HelpBrowser(QWidget *parent) : QTextBrowser(parent) {
    setObjectName(QStringLiteral("brwHelp"));
    setOpenExternalLinks(true);
    document()->setDocumentMargin(12);
}

QUrl HelpBrowser::forwarded(const QUrl &page) {
    static const QRegularExpression kRefresh(QStringLiteral("http-equiv=\"refresh\" content=\"0; url=([^\"]+)\""));
    QFile file(page.toLocalFile());
    if (!page.isLocalFile() || !file.open(QIODevice::ReadOnly))
        return page;
    constexpr qint64 kHead = 512;
    const auto match = kRefresh.match(QString::fromUtf8(file.read(kHead)));
    return match.hasMatch() ? page.resolved(QUrl(match.captured(1))) : page;
}

void HelpBrowser::doSetSource(const QUrl &url, QTextDocument::ResourceType type) {
    QTextBrowser::doSetSource(forwarded(url), type);
}

QVariant HelpBrowser::loadResource(int type, const QUrl &name) {
    return type == QTextDocument::StyleSheetResource ? QVariant(styleSheetOfPalette())
                                                     : QTextBrowser::loadResource(type, name);
}

QString HelpBrowser::styleSheetOfPalette() const {
    const QColor base = palette().base().color();
    const QColor text = palette().text().color();
    const QColor link = isDark(palette()) ? QColor(138, 184, 255) : QColor(0, 78, 170);
    return QStringLiteral("h1, h2, h3 { color: %1; } a { color: %2; } .where, .needs { color: %3; }"
                          "table { border-collapse: collapse; border-style: solid; border-width: 1px; "
                          "border-color: %4; }"
                          "th, td { border-style: solid; border-width: 1px; border-color: %4; }"
                          "th { background-color: %5; text-align: left; }"
                          "pre { background-color: %5; }")
        .arg(text.name(), link.name(), mixed(base, text, 0.62).name(), mixed(base, text, 0.3).name(),
             mixed(base, text, 0.1).name());
}

void HelpBrowser::changeEvent(QEvent *event) {
    QTextBrowser::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && !source().isEmpty())
        reload();
}
