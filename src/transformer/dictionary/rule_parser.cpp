#include "rule_parser.h"

using namespace Qt::StringLiterals;

namespace {

constexpr QLatin1StringView kRuleKeys[] = {"field"_L1, "via"_L1,      "is"_L1,       "isNot"_L1, "above"_L1, "below"_L1,
                                           "empty"_L1, "contains"_L1, "all"_L1,      "any"_L1,   "not"_L1,   "some"_L1,
                                           "where"_L1, "records"_L1,  "function"_L1, "fields"_L1};

Rule ruleOf(Rule::Kind kind) {
    Rule rule;
    rule.kind = kind;
    return rule;
}

// What a comparison looks at: the field and its file.
struct Comparison {
    const LoaderNames &names;
    const JsonReader &reader;
    const FieldDefinition &field;

    void addNumber(Rule &rule, QLatin1StringView key, const QJsonValue &value) const;
    void addItem(Rule &rule, QLatin1StringView key, const QString &text) const;
    void readOperands(Rule &rule, QLatin1StringView key) const;
};

void Comparison::addNumber(Rule &rule, QLatin1StringView key, const QJsonValue &value) const {
    if (field.isTextual() || field.kind == FieldKind::Derived)
        reader.refuse(key, u"\"%1\" is a text"_s.arg(field.id));
    const qint32 number = reader.scaled(key, value, 0);
    if (field.hasItems() && field.itemByValue(number) == nullptr)
        reader.refuse(key, u"\"%1\" has no item %2"_s.arg(field.id).arg(number));
    rule.values.push_back(number);
}

void Comparison::addItem(Rule &rule, QLatin1StringView key, const QString &text) const {
    if (field.isTextual() || field.kind == FieldKind::Derived) {
        rule.texts.append(text);
        return;
    }
    if (field.kind == FieldKind::Reference && field.to.hasNone && text == "None"_L1) {
        rule.values.push_back(0);
        return;
    }
    const std::size_t before = rule.values.size();
    for (const ListItem &item : field.items) {
        if (item.text == text)
            rule.values.push_back(item.value);
    }
    if (rule.values.size() == before)
        reader.refuse(key, u"\"%1\" has no item \"%2\""_s.arg(field.id, text));
}

void Comparison::readOperands(Rule &rule, QLatin1StringView key) const {
    const QJsonArray operands = reader.array(key);
    for (const auto &operand : operands) {
        if (operand.isString())
            addItem(rule, key, operand.toString());
        else
            addNumber(rule, key, operand);
    }
    if (operands.isEmpty())
        reader.refuse(key, u"must not be empty"_s);
}

// The one test among the keys of a comparison.
void readTest(Rule &rule, const Comparison &comparison) {
    const JsonReader &reader = comparison.reader;
    constexpr std::pair<QLatin1StringView, Rule::Test> kTests[] = {
        {"is"_L1, Rule::Test::Is},       {"isNot"_L1, Rule::Test::IsNot}, {"above"_L1, Rule::Test::Above},
        {"below"_L1, Rule::Test::Below}, {"empty"_L1, Rule::Test::Empty}, {"contains"_L1, Rule::Test::Contains}};
    int found = 0;
    for (const auto &[key, test] : kTests) {
        if (!reader.has(key))
            continue;
        ++found;
        rule.test = test;
        if (test == Rule::Test::Is || test == Rule::Test::IsNot)
            comparison.readOperands(rule, key);
        else if (test == Rule::Test::Above || test == Rule::Test::Below)
            rule.bound = reader.integer(key);
        else if (test == Rule::Test::Contains)
            rule.texts = reader.texts(key);
        else if (!reader.flag(key))
            rule.test = Rule::Test::NotEmpty;
        const bool textTest = test == Rule::Test::Empty || test == Rule::Test::Contains;
        const bool textField = comparison.field.isTextual() || comparison.field.kind == FieldKind::Derived;
        if (textTest && !textField)
            reader.refuse(key, u"\"%1\" is no text"_s.arg(comparison.field.id));
    }
    if (found != 1)
        reader.refuse("field"_L1, u"needs exactly one test"_s);
}

bool reaches(const LoaderNames &names, StructureIndex from, StructureIndex to) {
    const RecordStructure &target = names.parts.structures[to.slot()];
    return from == to || target.isRadio() || names.parts.structures[from.slot()].parent == to;
}

Rule readCompare(const LoaderNames &names, const JsonReader &reader, StructureIndex structure) {
    Rule rule = ruleOf(Rule::Kind::Compare);
    rule.field = names.field(reader, "field"_L1, reader.text("field"_L1));
    const FieldDefinition &field = names.definition(rule.field);
    StructureIndex from = field.structure;
    if (reader.has("via"_L1)) {
        rule.via = names.field(reader, "via"_L1, reader.text("via"_L1));
        const FieldDefinition &via = names.definition(rule.via);
        if (std::ranges::find(via.to.structures, field.structure) == via.to.structures.end())
            reader.refuse("via"_L1, u"\"%1\" does not refer to the records of \"%2\""_s.arg(via.id, field.id));
        from = via.structure;
    }
    if (!reaches(names, structure, from))
        reader.refuse("field"_L1, u"\"%1\" cannot be reached from here without \"via\" or \"some\""_s.arg(field.id));
    readTest(rule, {names, reader, field});
    return rule;
}

Rule readInner(const LoaderNames &names, const JsonReader &reader, StructureIndex structure, Rule::Kind kind,
               QLatin1StringView key) {
    Rule rule = ruleOf(kind);
    for (const auto &entry : reader.array(key))
        rule.inner.push_back(RuleParser::read(names, reader.nested(key, entry), structure));
    return rule;
}

Rule readRecords(const LoaderNames &names, const JsonReader &reader, StructureIndex structure) {
    Rule rule = ruleOf(Rule::Kind::Records);
    rule.structure = names.structure(reader, "records"_L1, reader.text("records"_L1));
    const RecordStructure &counted = names.parts.structures[rule.structure.slot()];
    if (counted.isScoped() && counted.parent != structure)
        reader.refuse("records"_L1, u"\"%1\" hangs on another structure"_s.arg(counted.name));
    const bool above = reader.has("above"_L1);
    rule.test = above ? Rule::Test::Above : Rule::Test::Below;
    rule.bound = reader.integer(above ? "above"_L1 : "below"_L1);
    return rule;
}

Rule readSome(const LoaderNames &names, const JsonReader &reader) {
    Rule rule = ruleOf(Rule::Kind::Some);
    rule.structure = names.structure(reader, "some"_L1, reader.text("some"_L1));
    rule.inner.push_back(RuleParser::read(names, reader.object("where"_L1), rule.structure));
    return rule;
}

Rule readFunction(const LoaderNames &names, const JsonReader &reader) {
    Rule rule = ruleOf(Rule::Kind::Function);
    rule.function = reader.text("function"_L1);
    for (const QString &id : reader.texts("fields"_L1))
        rule.reads.push_back(names.field(reader, "fields"_L1, id));
    return rule;
}

} // namespace

Rule RuleParser::read(const LoaderNames &names, const JsonReader &reader, StructureIndex structure) {
    reader.allow(kRuleKeys);
    constexpr QLatin1StringView kKinds[] = {"all"_L1,     "any"_L1,      "not"_L1,  "some"_L1,
                                            "records"_L1, "function"_L1, "field"_L1};
    if (std::ranges::count_if(kKinds, [&](QLatin1StringView kind) { return reader.has(kind); }) != 1)
        reader.refuse("field"_L1, u"a rule has exactly one of field, all, any, not, some, records, function"_s);
    if (reader.has("all"_L1))
        return readInner(names, reader, structure, Rule::Kind::All, "all"_L1);
    if (reader.has("any"_L1))
        return readInner(names, reader, structure, Rule::Kind::Any, "any"_L1);
    if (reader.has("not"_L1)) {
        Rule rule = ruleOf(Rule::Kind::Not);
        rule.inner.push_back(read(names, reader.object("not"_L1), structure));
        return rule;
    }
    if (reader.has("some"_L1))
        return readSome(names, reader);
    if (reader.has("records"_L1))
        return readRecords(names, reader, structure);
    if (reader.has("function"_L1))
        return readFunction(names, reader);
    return readCompare(names, reader, structure);
}
