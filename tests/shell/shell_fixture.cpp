#include "shell_fixture.h"

#include <QTreeWidget>

namespace {
// What SetTierNodeGreenTick asks.
const QStringList kTickCalls{QStringLiteral("GetCurrentTier("),     QStringLiteral("GetDataIsDirty("),
                             QStringLiteral("GetTreeNodeHasData("), QStringLiteral("GetNewAllowed("),
                             QStringLiteral("GetFileName("),        QStringLiteral("GetSaveAllowed(")};
} // namespace

ShellFixture::ShellFixture(const QStringList &arguments) {
    services.translation.gLanguage = 0;
    transformer.when(QStringLiteral("InitialiseDatabase")).answers(QStringLiteral("0|Alpha|A|0|Beta & Co|B"));
    transformer.when(QStringLiteral("GetSquirtAvailable")).answers(true);
    transformer.when(QStringLiteral("GetProgramAsAvailable")).answers(true);
    transformer.when(QStringLiteral("GetRadioModel")).answers(QStringLiteral("KX4600"));
    transformer.when(QStringLiteral("GetCurrentTier")).answers(QStringLiteral("A"));
    transformer.when(QStringLiteral("GetDatabaseVersion")).answers(QStringLiteral("3.20"));
    transformer.when(QStringLiteral("ValidateOnExit")).answers(true);
    transformer.when(QStringLiteral("GetCurrentFormTreeNode")).answers(1);
    for (const char *tier : {"A", "B"}) {
        const QString key = QString::fromLatin1(tier);
        transformer.when(QStringLiteral("ChangeTier"), key).runs([this, key] { raiseChangeToTier(key); });
    }
    window = std::make_unique<frmMain>(ShellServices{transformer, services.process, services.translation,
                                                     services.errors, services.boxes, services.clipboard, forms,
                                                     fileDialogs, splash, process, nullptr, arguments});
    services.errors.SetSink(&services.errorSink);
}

ShellFixture::~ShellFixture() { window.reset(); }

void ShellFixture::load() {
    window->Form_Initialize();
    window->Form_Load();
    static_cast<void>(log.take());
}

FormLists ShellFixture::lists() {
    return {{QStringLiteral("usrctlSpec"), QStringLiteral("grpNetworks"), QStringLiteral("->usrctlNetworks"),
             QStringLiteral("->usrctlAlerts"), QStringLiteral("grpDTMF"), QStringLiteral("->usrctlPatch"),
             QStringLiteral("usrctlChannels")},
            {QStringLiteral("Speci&fications"), QStringLiteral("Networks"), QStringLiteral("Basic Settings"),
             QStringLiteral("Alerts"), QStringLiteral("DTMF"), QStringLiteral("DTMF Patch"),
             QStringLiteral("Channels")},
            {{QStringLiteral("Speci&fications"), 20}, {QStringLiteral("Alerts"), 60}, {QStringLiteral("Networks"), 20}},
            {{QStringLiteral("Alerts"), 3}},
            {QStringLiteral("All"), QStringLiteral("Net"), QStringLiteral("Net"), QStringLiteral("Net"),
             QStringLiteral("All"), QStringLiteral("All"), QStringLiteral("All")}};
}

void ShellFixture::raiseChangeToTier(const QString &tierKey) {
    transformer.raise([&](TransformerEvents &events) {
        const FormLists all = lists();
        bool result = false;
        events.TransformerEvents_ChangeToTier(tierKey, all.formList, all.formDescList, all.formAccessLevels,
                                              all.formNetworks, all.formTypeList, result);
        if (!result)
            failTest(QStringLiteral("the tier was not shown"));
    });
}

QStringList ShellFixture::takeMainCalls() {
    QStringList calls;
    for (const QString &line : log.take()) {
        const bool tick = std::any_of(kTickCalls.begin(), kTickCalls.end(),
                                      [&line](const QString &call) { return line.startsWith(call); });
        if (!tick)
            calls << line;
    }
    return calls;
}

QString ShellFixture::selectedText() const {
    const auto *tree = find<QTreeWidget>(QStringLiteral("FormTree"));
    return tree->currentItem() == nullptr ? QString() : tree->currentItem()->text(0);
}
