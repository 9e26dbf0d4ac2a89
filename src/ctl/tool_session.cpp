#include "tool_session.h"

#include "file_kind.h"
#include "product_identity.h"
#include "squirt_file.h"
#include "whole_file.h"

#include <QFileInfo>

#include <limits>

namespace {
constexpr qint32 kAccessHigh = 80;
constexpr qint32 kNoRecord = std::numeric_limits<qint32>::max();
} // namespace

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

QString ToolSession::requiredOutput() const {
    if (!mArguments.has(QStringLiteral("-o")))
        throw UsageError(QStringLiteral("name the file to write with -o FILE"));
    return mArguments.value(QStringLiteral("-o"));
}

void ToolSession::open(const QString &fileName) {
    mTransformer->ReadFile(fileName, 0, 0, false);
    if (mTransformer->GetFileName() != QFileInfo(fileName).absoluteFilePath())
        throw CommandFailed{ExitCode::kFile};
    mFileTier = state().tier();
    selectTier();
}

void ToolSession::openForRadio(const QString &fileName) {
    const QByteArray content = WholeFile::read(fileName);
    if (FileKinds::of(content) != FileKind::Squirt) {
        open(fileName);
        return;
    }
    TierData data = SquirtFile::read(dictionary(), fileName, content);
    const TierIndex tier = data.tier();
    if (mArguments.has(QStringLiteral("--tier")) &&
        mArguments.value(QStringLiteral("--tier")) != dictionary().tier(tier).key)
        throw UsageError(QStringLiteral("the squirt file holds the tier %1").arg(dictionary().tier(tier).key));
    state().document.data.replace(std::move(data));
    state().document.data.setCurrentTier(tier);
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
    FieldTarget result{.field = field, .record = {}, .address = address.uiid};
    if (owner.isRadio())
        return result;
    if (address.record == 0)
        throw UsageError(QStringLiteral("%1 is a field of each %2: write %1(N)").arg(address.uiid, owner.label));
    if (address.parent > 0 && !owner.parent.isValid())
        throw UsageError(QStringLiteral("%1 has no parent record: write %1(N)").arg(address.uiid));
    result.address += address.parent > 0 ? QStringLiteral("(%1.%2)").arg(address.parent).arg(address.record)
                                         : QStringLiteral("(%1)").arg(address.record);
    result.record = recordOf(owner, address);
    if (!state().current().exists(owner.index, result.record))
        fail(ExitCode::kRefused, QStringLiteral("%1: there is no such record").arg(result.address));
    return result;
}

RecordAddress ToolSession::recordOf(const RecordStructure &owner, const Address &address) {
    if (owner.isFlat() && address.parent > 0) {
        const bool isBelow = address.record <= owner.perParent;
        return {0, isBelow ? (address.parent - 1) * owner.perParent + address.record : kNoRecord};
    }
    if (owner.isScoped() && address.parent == 0)
        return state().current().recordByTotal(owner.index, address.record);
    return {address.parent, address.record};
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
