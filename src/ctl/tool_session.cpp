#include "tool_session.h"

#include "product_identity.h"

#include <QFileInfo>

namespace {
constexpr qint32 kAccessHigh = 80;
}

ToolSession::ToolSession(Console &console, const Arguments &arguments)
    : mConsole(console), mArguments(arguments),
      mEvents(std::make_unique<ToolEvents>(console, arguments.has(QStringLiteral("--yes")))),
      mTransformer(std::make_unique<TransformerComponent>(ComponentPlaces::ofTool())) {
    mTransformer->SetCallerVersion(ProductIdentity::callerVersion());
    mTransformer->SetAccessLevel(kAccessHigh);
    mTransformer->AddListener(mEvents.get());
    mTransformer->AddProgressListener(mEvents.get());
}

ToolSession::~ToolSession() { mTransformer->ShutDown(); }

void ToolSession::fail(int exitCode, const QString &text) {
    mConsole.message(text);
    throw CommandFailed{exitCode};
}

void ToolSession::open(const QString &fileName) {
    mTransformer->ReadFile(fileName, 0, 0, false);
    if (mTransformer->GetFileName() != QFileInfo(fileName).absoluteFilePath())
        throw CommandFailed{ExitCode::kFile};
    mFileTier = state().tier();
    selectTier();
}

void ToolSession::selectTier() {
    const QString key = mArguments.value(QStringLiteral("--tier"));
    if (!mArguments.has(QStringLiteral("--tier")))
        return;
    if (!dictionary().tierByKey(key))
        throw UsageError(QStringLiteral("unknown tier %1").arg(key));
    mTransformer->ChangeTier(key);
}

void ToolSession::save(const QString &fileName) {
    const QString out = mArguments.has(QStringLiteral("-o")) ? mArguments.value(QStringLiteral("-o")) : fileName;
    // --tier chooses whose values are meant; the file's current tier stays.
    state().document.data.setCurrentTier(mFileTier.value_or(state().tier()));
    bool saved = false;
    mTransformer->SaveFile(out, state().fileComment, 0, saved);
    if (!saved)
        throw CommandFailed{ExitCode::kFile};
}

const RecordStructure &ToolSession::structure(const QString &guide) const {
    const std::optional<StructureIndex> index = dictionary().structureOf(guide);
    if (!index || dictionary().structure(*index).isRadio())
        throw UsageError(QStringLiteral("unknown guide %1").arg(guide));
    return dictionary().structure(*index);
}

FieldTarget ToolSession::target(const Address &address) {
    const FieldDefinition *field = dictionary().find(address.uiid);
    if (field == nullptr)
        throw UsageError(QStringLiteral("unknown UIID %1").arg(address.uiid));
    const RecordStructure &owner = dictionary().structure(field->structure);
    FieldTarget result{.field = field, .record = {address.parent, address.record}, .address = address.uiid};
    if (owner.isRadio()) {
        result.record = {};
        return result;
    }
    if (address.record == 0)
        throw UsageError(QStringLiteral("%1 is a field of each %2: write %1(N)").arg(address.uiid, owner.label));
    if (address.parent > 0 && !owner.isScoped())
        throw UsageError(QStringLiteral("%1 has no parent record: write %1(N)").arg(address.uiid));
    result.address += address.parent > 0 ? QStringLiteral("(%1.%2)").arg(address.parent).arg(address.record)
                                         : QStringLiteral("(%1)").arg(address.record);
    if (owner.isScoped() && address.parent == 0)
        result.record = state().current().recordByTotal(owner.index, address.record);
    if (!state().current().exists(owner.index, result.record))
        fail(ExitCode::kRefused, QStringLiteral("%1: there is no such record").arg(result.address));
    return result;
}

void ToolSession::selectParent(StructureIndex structure, RecordAddress record) {
    const RecordStructure &owner = dictionary().structure(structure);
    if (!owner.isScoped())
        return;
    bool ok = false;
    mTransformer->SetValue(dictionary().structure(owner.parent).position, record.parent, 1, true, ok);
    if (!ok)
        throw CommandFailed{ExitCode::kRefused};
}
