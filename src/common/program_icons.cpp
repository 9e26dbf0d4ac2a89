#include "program_icons.h"

#include "run_time_error.h"
#include "svg_icon_engine.h"

#include <QFile>

#include <array>

namespace {
// By ProgramIcon.
constexpr std::array<QLatin1String, 26> kFiles{
    QLatin1String("new"),           QLatin1String("open"),          QLatin1String("save"),
    QLatin1String("print"),         QLatin1String("revert"),        QLatin1String("validate"),
    QLatin1String("accept"),        QLatin1String("reject"),        QLatin1String("whats-this"),
    QLatin1String("help"),          QLatin1String("read"),          QLatin1String("program"),
    QLatin1String("interrogate"),   QLatin1String("tick-white"),    QLatin1String("tick-green"),
    QLatin1String("group"),         QLatin1String("application"),   QLatin1String("splash"),
    QLatin1String("first"),         QLatin1String("back"),          QLatin1String("forward"),
    QLatin1String("last"),          QLatin1String("record-add"),    QLatin1String("record-insert"),
    QLatin1String("record-repeat"), QLatin1String("record-delete"),
};

QByteArray drawingOf(ProgramIcon icon) {
    QFile file(QStringLiteral(":/kx4600/icons/%1.svg").arg(kFiles.at(std::size_t(icon))));
    if (!file.open(QIODevice::ReadOnly)) {
        throw RunTimeError(ErrorNumber::kMissingObject, QStringLiteral("ProgramIcons"),
                           QStringLiteral("Icon not found: %1").arg(file.fileName()));
    }
    return file.readAll();
}
} // namespace

// At file scope: the macro declares a function of the resource compiler. Asked for by name, since a static library's
// resources are otherwise dropped by the linker.
static void registerIcons() { Q_INIT_RESOURCE(program_icons); }

QIcon loadIcon(ProgramIcon icon) {
    registerIcons();
    return QIcon(new SvgIconEngine(drawingOf(icon))); // the icon owns its engine
}

QPixmap loadPixmap(ProgramIcon icon, const QSize &size, double devicePixelRatio) {
    registerIcons();
    SvgIconEngine engine(drawingOf(icon));
    QPixmap pixmap = engine.pixmap(size * devicePixelRatio, QIcon::Normal, QIcon::On);
    pixmap.setDevicePixelRatio(devicePixelRatio);
    return pixmap;
}
