#include "program_bench.h"

#include "data_form.h"
#include "frm_main.h"
#include "ifield.h"
#include "test_failure.h"
#include "transformer.h"
#include "value_text.h"
#include "window_input.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QToolButton>
#include <QTreeWidget>

#include <span>

namespace {
constexpr int kWidth = 1024;
constexpr int kHeight = 768;

void writeLanguage(const QString &folder, qint32 language) {
    QDir().mkpath(folder);
    QFile settings(folder + QStringLiteral("/settings.ini"));
    if (!settings.open(QIODevice::WriteOnly))
        qFatal("no settings could be written");
    settings.write("[General]\nLanguage=" + QByteArray::number(language) + '\n');
}

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

ProgramBench::ProgramBench(const std::function<std::unique_ptr<Transformer>()> &component, qint32 language) {
    for (const char *name : {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_STATE_HOME"})
        qputenv(name, (mHome.path() + u'/' + QLatin1String(name)).toUtf8());
    writeLanguage(mHome.path() + QStringLiteral("/XDG_CONFIG_HOME/KX4600"), language);
    linkHelp();
    mProgram = std::make_unique<MainProgram>(errors, QStringList(),
                                             ProgramReplacements{.boxes = &boxes, .component = component});
    if (!mProgram->Start())
        qFatal("the program did not start");
    window().resize(kWidth, kHeight);
    WindowInput::activate(window());
}

ProgramBench::ProgramBench(const QString &tier) : ProgramBench() { chooseTier(tier); }

ProgramBench::~ProgramBench() = default;

frmMain &ProgramBench::window() const { return mProgram->Window(); }
Transformer &ProgramBench::component() const { return mProgram->Component(); }

void ProgramBench::chooseTier(const QString &key) {
    auto *button = window().findChild<QToolButton *>(key);
    if (button == nullptr)
        return failTest(QStringLiteral("there is no tier ") + key);
    button->click();
    if (component().GetCurrentTier() != key)
        failTest(QStringLiteral("the tier is not ") + key);
}

std::vector<ProgramBench::Form> ProgramBench::forms() const {
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

void ProgramBench::open(const Form &form) const {
    if (!window().OpenForm(form.typeName, form.caption, true))
        failTest(QStringLiteral("%1 was not opened").arg(form.typeName));
    QCoreApplication::processEvents();
}

bool ProgramBench::openForm(const QString &caption) {
    auto *tree = window().findChild<QTreeWidget *>(QStringLiteral("FormTree"));
    const QList<QTreeWidgetItem *> items = tree->findItems(caption, Qt::MatchExactly | Qt::MatchRecursive);
    if (items.size() != 1)
        return false;
    tree->scrollToItem(items.constFirst());
    WindowInput::clickAt(*tree->viewport(), tree->visualItemRect(items.constFirst()).center());
    if (component().GetCurrentFormName() != caption)
        failTest(QStringLiteral("a click on %1 opened %2").arg(caption, component().GetCurrentFormName()));
    return true;
}

DataForm *ProgramBench::form() const { return window().findChild<DataForm *>(QStringLiteral("currentlyOpenUsrctl")); }

HostControl *ProgramBench::control(const QString &name) const {
    for (HostControl *control : form()->Iusrfrm_Controls()) {
        if (control->Name() == name)
            return control;
    }
    return nullptr;
}

Ifield *ProgramBench::field(const QString &name) const {
    HostControl *found = control(name);
    return found == nullptr ? nullptr : found->object();
}

QWidget *ProgramBench::widget(const QString &name) const { return dynamic_cast<QWidget *>(field(name)); }

bool ProgramBench::isValue(const QString &typeName) {
    return QStringList{QStringLiteral("fldTextField"), QStringLiteral("fldComboField"),
                       QStringLiteral("fldCheckboxField"), QStringLiteral("fldIdTrackerField")}
        .contains(typeName);
}

std::vector<Ifield *> ProgramBench::usableFields() const {
    std::vector<Ifield *> fields;
    for (const HostControl *candidate : form()->Iusrfrm_Controls()) {
        Ifield *shown = candidate->object();
        if (isValue(candidate->TypeName()) && shown->Ifield_GetVisible() && shown->Ifield_GetEnabled() &&
            candidate->Enabled() && !shown->Ifield_GetUIIDNotFound())
            fields.push_back(shown);
    }
    return fields;
}

QString ProgramBench::value(const QString &uiid, qint32 record) const {
    return ValueText::of(component().GetValue(uiid, record));
}

void ProgramBench::setValue(const QString &uiid, qint32 record, const QVariant &value) const {
    bool accepted = false;
    component().SetValue(uiid, value, record, true, accepted);
    if (!accepted)
        failTest(QStringLiteral("%1 %2 was refused").arg(uiid, ValueText::of(value)));
}

void ProgramBench::addRecords() const {
    struct Kind {
        const char *guide;
        const char *grid;
    };
    constexpr Kind kKinds[] = {{"NetworkID", "Network"},
                               {"ChannelID_q7r", "Channels9000"},
                               {"GroupID_q7r", "ScanGroup"},
                               {"SignalSystemId_q7r", "Selcall9000"},
                               {"DTMFNetworkSigSystemID", "DTMF"},
                               {"T99NetworkID_q7r", "Type99"},
                               {"MDC1200SignallingSystemID", "MDC1200"}};
    const QHash<QString, std::size_t> kinds{
        {QStringLiteral("Basic"), 3}, {QStringLiteral("Standard"), 5}, {QStringLiteral("Advanced"), 7}};
    const std::size_t count = kinds.value(component().GetCurrentTier());
    for (const Kind &kind : std::span(kKinds).first(count)) {
        const QString guide = QString::fromLatin1(kind.guide);
        qint32 record = component().GetNumberOfRecords(guide) + 1;
        bool accepted = false;
        component().AddRecord(guide, QString::fromLatin1(kind.grid), record, accepted);
        if (!accepted)
            failTest(QStringLiteral("no record was added for ") + guide);
    }
    if (count > 3)
        setValue(QStringLiteral("SignallingType"), 1, 1);
}

void ProgramBench::picture(QWidget &widget, const QString &name) {
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
