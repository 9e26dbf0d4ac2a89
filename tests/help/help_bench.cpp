#include "help_bench.h"

#include "ifield.h"
#include "transformer.h"
#include "window_input.h"

#include <QApplication>
#include <QFile>
#include <QFileInfo>
#include <QPalette>
#include <QTabWidget>
#include <QTest>

namespace {
// The pages stand beside the programs; a test is not there.
void linkHelp() {
    const QString here = QCoreApplication::applicationDirPath() + QStringLiteral("/kx4kp_en");
    if (!QFileInfo::exists(here))
        QFile::link(qEnvironmentVariable("KX4600_BIN") + QStringLiteral("/kx4kp_en"), here);
}

QPalette darkPalette() {
    QPalette palette(QColor(53, 57, 62), QColor(40, 43, 47));
    palette.setColor(QPalette::Highlight, QColor(42, 110, 190));
    return palette;
}
} // namespace

HelpBench::HelpBench() {
    for (const char *name : {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_STATE_HOME"})
        qputenv(name, (mHome.path() + u'/' + QString::fromLatin1(name)).toUtf8());
    linkHelp();
    mProgram = std::make_unique<MainProgram>(errors, QStringList(), ProgramReplacements{.boxes = &boxes});
    if (!mProgram->Start())
        failTest(QStringLiteral("the program did not start"));
    component().ChangeTier(QStringLiteral("Advanced"));
    window().resize(1024, 768);
    WindowInput::activate(window());
}

std::vector<HelpBench::Form> HelpBench::forms() {
    QStringList tabs;
    QStringList keys;
    QStringList captions;
    QStringList types;
    QHash<QString, QString> tips;
    QHash<QString, QVariant> levels;
    QHash<QString, QVariant> networks;
    component().GetTreeFilterTabs(tabs, tips, keys, captions, levels, networks, types);
    std::vector<Form> result;
    for (qsizetype place = 0; place < keys.size(); ++place) {
        const QString name = QString(keys.at(place)).remove(QStringLiteral("->"));
        if (window().CanOpen(name))
            result.push_back({name, captions.at(place)});
    }
    return result;
}

void HelpBench::open(const Form &form) {
    if (!window().OpenForm(form.typeName, form.caption, true))
        failTest(QStringLiteral("%1 was not opened").arg(form.typeName));
    QCoreApplication::processEvents();
}

std::vector<Ifield *> HelpBench::usableFields() {
    std::vector<Ifield *> fields;
    for (HostControl *control : window().LoadedUsrControl().form->Iusrfrm_Controls()) {
        Ifield *field = control->object();
        static const QStringList kTypes{QStringLiteral("fldTextField"), QStringLiteral("fldComboField"),
                                        QStringLiteral("fldCheckboxField"), QStringLiteral("fldIdTrackerField")};
        if (field != nullptr && kTypes.contains(control->TypeName()) && field->Ifield_GetVisible() &&
            field->Ifield_GetEnabled() && control->Enabled() && !field->Ifield_GetUIIDNotFound())
            fields.push_back(field);
    }
    return fields;
}

void HelpBench::picture(QWidget &widget, const QString &name) {
    const QString folder = qEnvironmentVariable("KX4600_PICTURES");
    if (folder.isEmpty())
        return;
    const QPalette own = QApplication::palette();
    for (const auto &[palette, suffix] :
         {std::pair(own, QString()), std::pair(darkPalette(), QStringLiteral("-dark"))}) {
        QApplication::setPalette(palette);
        QCoreApplication::processEvents();
        widget.grab().save(folder + u'/' + name + suffix + QStringLiteral(".png"));
    }
    QApplication::setPalette(own);
}
