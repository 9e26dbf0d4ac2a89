#include "random_edits.h"

#include "decimal_text.h"
#include "item_lists.h"

using namespace Qt::StringLiterals;

void RandomEdits::make(int count) {
    for (int i = 0; i < count; ++i) {
        const int what = any(20);
        if (what == 0)
            moveOn();
        else if (what < 6)
            changeRecords();
        else if (what == 6)
            paste();
        else if (what == 7)
            sort();
        else
            setValue();
    }
}

const RecordStructure &RandomEdits::anyStructure() {
    const auto structures = mComponent.dictionary().structures();
    return structures[std::size_t(any(qsizetype(structures.size())))];
}

// Another record of a structure that scopes others.
void RandomEdits::moveOn() {
    const RecordStructure &structure = anyStructure();
    bool ok = false;
    const qint32 count = mComponent.GetNumberOfRecords(structure.guide);
    if (!structure.position.isEmpty() && count > 0)
        mComponent.SetValue(structure.position, 1 + any(count), 0, true, ok);
}

QVariant RandomEdits::anyValue(const FieldDefinition &field, qint32 record) {
    if (field.kind == FieldKind::Flag)
        return any(2);
    if (field.kind == FieldKind::Number) {
        const qint32 steps = (field.limits.maximum - field.limits.minimum) / field.limits.step;
        return DecimalText::of(field.limits.minimum + any(steps + 1) * field.limits.step, field.decimals);
    }
    if (field.isTextual()) {
        QString text;
        for (int left = any(field.length + 1); left > 0; --left)
            text += field.mask.isEmpty() ? u'x' : field.mask[any(field.mask.size())];
        return text;
    }
    const ComponentState &state = mComponent.state();
    const std::vector<FieldItem> items =
        ItemLists(state.current()).items(field.index, mComponent.state().address(field.structure, record));
    if (items.empty())
        return {};
    const FieldItem &item = items[std::size_t(any(qsizetype(items.size())))];
    return field.kind == FieldKind::List ? QVariant(item.value) : QVariant(item.text);
}

void RandomEdits::setValue() {
    const RecordStructure &structure = anyStructure();
    const qint32 count = structure.isRadio() ? 1 : mComponent.GetNumberOfRecords(structure.guide);
    if (structure.stored.empty() || count == 0)
        return;
    const FieldDefinition &field =
        mComponent.dictionary().field(structure.stored[std::size_t(any(qsizetype(structure.stored.size())))]);
    const qint32 record = 1 + any(count);
    bool ok = false;
    mComponent.SetValue(field.id, anyValue(field, record), record, true, ok);
    mAccepted[u"set"_s] += ok ? 1 : 0;
}

void RandomEdits::changeRecords() {
    const RecordStructure &structure = anyStructure();
    const qint32 record = 1 + any(mComponent.GetNumberOfRecords(structure.guide));
    const int what = any(5);
    qint32 added = 0;
    bool ok = false;
    if (structure.isRadio())
        return;
    if (what < 2)
        mComponent.AddRecord(structure.guide, QString(), added, ok);
    else if (what == 2)
        mComponent.InsertRecord(structure.guide, record, QString(), ok);
    else if (what == 3)
        mComponent.RepeatRecord(structure.guide, record, QString(), ok);
    else
        mComponent.DeleteRecord(structure.guide, record, ok);
    mAccepted[what < 2 ? u"add"_s : u"record %1"_s.arg(what)] += ok ? 1 : 0;
}

void RandomEdits::sort() {
    const RecordStructure &structure = anyStructure();
    if (structure.fields.empty())
        return;
    mComponent.SortColumn(
        mComponent.dictionary().field(structure.fields[std::size_t(any(qsizetype(structure.fields.size())))]).id, true);
}

// Cells of whatever is shown in two columns, over the first record and as new ones.
void RandomEdits::paste() {
    const RecordStructure &structure = anyStructure();
    if (structure.isRadio() || structure.stored.empty())
        return;
    QStringList columns;
    for (int column = 0; column < 2; ++column)
        columns.append(
            mComponent.dictionary().field(structure.stored[std::size_t(any(qsizetype(structure.stored.size())))]).id);
    QStringList lines;
    for (int line = 0; line < 3; ++line) {
        const FieldReader reader(mComponent.state().current());
        const RecordAddress record =
            mComponent.state().address(structure.index, 1 + any(mComponent.GetNumberOfRecords(structure.guide)));
        QStringList cells;
        for (const QString &uiid : columns)
            cells.append(reader.shown(mComponent.dictionary().indexOf(uiid), record));
        lines.append(cells.join(u'\t'));
    }
    mClipboard = lines.join(u'\n');
    const bool ok = mComponent.ImportRecordByPaste(QString(), columns.join(u'|'), nullptr, QString(), u"1"_s);
    mAccepted[u"paste"_s] += ok ? 1 : 0;
}
