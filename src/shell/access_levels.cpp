#include "access_levels.h"

#include "common_error_handler.h"
#include "form_host.h"
#include "form_nodes.h"
#include "form_tree_widget.h"
#include "main_menu.h"
#include "process_values.h"
#include "setting.h"
#include "transformer.h"
#include "translated_texts.h"

#include <QAction>
#include <QMenu>

namespace {
struct Row {
    const char *caption;
    qint32 value; // for SetAccessLevel
};
constexpr std::array<Row, AccessLevels::kCount> kLevels{Row{"&High", 80}, Row{"&Medium", 60}, Row{"&Low", 40},
                                                        Row{"&ID and Personalisation Only", 20}};
constexpr qint32 kPreviousLevel = 4; // of the setting: the level last used
} // namespace

AccessLevels::AccessLevels(Transformer &transformer, const ProcessValues &process, FormNodes &nodes,
                           const FormHost &host, MainMenu &menu, TranslatedTexts &texts, ErrorReport &errors)
    : mTransformer(transformer), mProcess(process), mNodes(nodes), mHost(host), mErrors(errors) {
    QMenu &options = menu.Menu(QStringLiteral("mnuAccessLevelOption"));
    for (std::size_t i = 0; i < mEntries.size(); ++i) {
        QAction *entry = options.addAction(QString());
        const auto index = qint32(i) + 1;
        entry->setObjectName(QStringLiteral("mnuAccessLevelOption(%1)").arg(index));
        entry->setCheckable(true);
        texts.Add(Caption(index), [entry](const QString &text) { entry->setText(text); });
        QObject::connect(entry, &QAction::triggered, &options, [this, index] { mnuAccessLevelOption_Click(index); });
        mEntries.at(i) = entry;
    }
}

QString AccessLevels::Caption(qint32 Level) {
    if (Level < 1 || Level > kCount)
        throw RunTimeError(ErrorNumber::kIndexOutOfRange, QStringLiteral("AccessLevels"),
                           QStringLiteral("There is no access level %1").arg(Level));
    return QString::fromLatin1(kLevels.at(std::size_t(Level - 1)).caption);
}

void AccessLevels::InitialiseAccessLevels() try {
    const auto stored = [this](const QString &key, qint32 highest) {
        const qint32 level = Setting::integer(mTransformer, key, 0);
        return level < 0 || level > highest ? 0 : level;
    };
    qint32 level = stored(QStringLiteral("AccessLevel"), kPreviousLevel);
    if (level == kPreviousLevel)
        level = stored(QStringLiteral("PreviousAccessLevel"), kPreviousLevel - 1);
    ChangeAccessLevel(level + 1);
}
ERROR_TAIL()

void AccessLevels::ChangeAccessLevel(qint32 Level) try {
    for (QAction *entry : mEntries)
        entry->setChecked(false);
    mEntries.at(std::size_t(Level - 1))->setChecked(true);
    const qint32 value = kLevels.at(std::size_t(Level - 1)).value;
    mTransformer.SetAccessLevel(value);
    mTransformer.SaveSetting(QStringLiteral("PreviousAccessLevel"), Level - 1);
    for (qint32 node = 1; node <= mNodes.Count(); ++node) {
        if (mNodes.Colour(node) != NodeColour::kButtonFace)
            mNodes.SetColour(node,
                             mNodes.AccessLevel(node) <= value ? NodeColour::kMenuText : NodeColour::kButtonShadow);
    }
}
ERROR_TAIL()

void AccessLevels::ShowFormMenuAccessLevelHighlight() try {
    for (std::size_t i = 0; i < mEntries.size(); ++i) {
        if (mEntries.at(i)->isChecked()) {
            ChangeAccessLevel(qint32(i) + 1);
            return;
        }
    }
}
ERROR_TAIL()

void AccessLevels::mnuAccessLevelOption_Click(qint32 Index) try {
    // The click has toggled the mark; it stands for the level in force until the level has changed.
    QAction &entry = *mEntries.at(std::size_t(Index - 1));
    entry.setChecked(!entry.isChecked());
    const auto enabler = mProcess.colEnablers.Item(QStringLiteral("Main"));
    if (!mHost.IsFormLoaded() || enabler == nullptr)
        return;
    enabler->Ienabler_ForceSaveToCurrentField();
    if (enabler->Ienabler_OKToLeaveForm() && enabler->Ienabler_ValidateForm(true))
        ChangeAccessLevel(Index);
}
ERROR_TAIL()
