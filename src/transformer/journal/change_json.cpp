#include "change_json.h"

#include "record_json.h"
#include "run_time_error.h"

#include <QJsonObject>

namespace {
// The first element of a step tells which it is.
const QString kValue = QStringLiteral("value");
const QString kInsert = QStringLiteral("insert");
const QString kRemove = QStringLiteral("remove");
const QString kMove = QStringLiteral("move");

[[noreturn]] void wrong() {
    throw RunTimeError(ErrorNumber::kBadArgument, QStringLiteral("ChangeJson"), QStringLiteral("No step"));
}

QJsonValue jsonOf(const StoredValue &value) { return value.isText() ? QJsonValue(value.text()) : value.number(); }

StoredValue valueOf(const FieldDefinition &field, const QJsonValue &json) {
    if (field.isTextual() != json.isString() || (!json.isString() && !json.isDouble()))
        wrong();
    return json.isString() ? StoredValue(json.toString()) : StoredValue(json.toInt());
}

const RecordStructure &structureOf(const Dictionary &dictionary, const QString &name) {
    const std::optional<StructureIndex> index = dictionary.structureByName(name);
    if (!index)
        wrong();
    return dictionary.structure(*index);
}

class StepWriter {
  public:
    explicit StepWriter(const Dictionary &dictionary) : mDictionary(dictionary) {}

    QJsonArray operator()(const ValueStep &step) const {
        return {kValue,
                mDictionary.field(step.field).id,
                step.record.parent,
                step.record.number,
                jsonOf(step.before),
                jsonOf(step.after)};
    }
    QJsonArray operator()(const InsertStep &step) const {
        return withImage(kInsert, step.structure, step.record, step.image);
    }
    QJsonArray operator()(const RemoveStep &step) const {
        return withImage(kRemove, step.structure, step.record, step.image);
    }
    QJsonArray operator()(const MoveStep &step) const {
        return {kMove, mDictionary.structure(step.structure).name, step.parent, step.from, step.to};
    }

  private:
    [[nodiscard]] QJsonArray withImage(const QString &kind, StructureIndex index, RecordAddress record,
                                       const RecordImage &image) const {
        const RecordStructure &structure = mDictionary.structure(index);
        QJsonObject children;
        for (std::size_t i = 0; i < image.children.size(); ++i) {
            const RecordStructure &child = mDictionary.structure(structure.children[i]);
            QJsonArray rows;
            for (const RecordRow &row : image.children[i])
                rows.append(RecordJson::ofRow(mDictionary, child, row));
            children.insert(child.name, rows);
        }
        return {
            kind,    structure.name, record.parent, record.number, RecordJson::ofRow(mDictionary, structure, image.row),
            children};
    }

    const Dictionary &mDictionary;
};

RecordRow rowOf(const Dictionary &dictionary, const RecordStructure &structure, const QJsonObject &json) {
    RecordRow zero;
    for (const FieldIndex index : structure.stored)
        zero.push_back(dictionary.field(index).isTextual() ? StoredValue(QString()) : StoredValue(0));
    return RecordJson::row(dictionary, structure, json, zero);
}

RecordImage imageOf(const Dictionary &dictionary, const RecordStructure &structure, const QJsonArray &step) {
    RecordImage image{.row = rowOf(dictionary, structure, step[4].toObject()), .children = {}};
    for (const StructureIndex index : structure.children) {
        const RecordStructure &child = dictionary.structure(index);
        std::vector<RecordRow> &rows = image.children.emplace_back();
        for (const auto &row : step[5].toObject().value(child.name).toArray())
            rows.push_back(rowOf(dictionary, child, row.toObject()));
    }
    return image;
}

Change changeOf(const Dictionary &dictionary, const QJsonArray &step) {
    const QString kind = step[0].toString();
    const QString name = step[1].toString();
    const RecordAddress record{step[2].toInt(), step[3].toInt()};
    if (kind == kValue) {
        const FieldDefinition *field = dictionary.find(name);
        if (field == nullptr || !field->isStored())
            wrong();
        return ValueStep{field->index, record, valueOf(*field, step[4]), valueOf(*field, step[5])};
    }
    const RecordStructure &structure = structureOf(dictionary, name);
    if (kind == kMove)
        return MoveStep{structure.index, record.parent, step[3].toInt(), step[4].toInt()};
    if (kind == kInsert)
        return InsertStep{structure.index, record, imageOf(dictionary, structure, step)};
    if (kind == kRemove)
        return RemoveStep{structure.index, record, imageOf(dictionary, structure, step)};
    wrong();
}
} // namespace

namespace ChangeJson {
QJsonArray toJson(const Dictionary &dictionary, const Changes &changes) {
    QJsonArray json;
    for (const Change &change : changes)
        json.append(std::visit(StepWriter(dictionary), change));
    return json;
}

Changes fromJson(const Dictionary &dictionary, const QJsonArray &json) {
    Changes changes;
    for (const auto &step : json)
        changes.push_back(changeOf(dictionary, step.toArray()));
    return changes;
}
} // namespace ChangeJson
