#include "dictionary_loader.h"
#include "form_catalogue.h"
#include "run_time_error.h"

#include <QFile>
#include <QRegularExpression>
#include <QSet>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype kFewestHelpWords = 8;

QStringList wordsOf(const QString &text) {
    static const QRegularExpression separator(u"[^\\w]+"_s);
    return text.toLower().split(separator, Qt::SkipEmptyParts);
}

// Numbered instances of one setting ("Function Key 1" to "4") may share their help but for the digits.
QString withoutDigits(QString text) {
    static const QRegularExpression digits(u"\\d"_s);
    return text.remove(digits);
}

} // namespace

// Rules that the compiled-in dictionary must keep beyond what the loader refuses.
class DictionaryDataTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void initTestCase() {
        try {
            mDictionary = DictionaryLoader::loadCompiledIn();
        } catch (const RunTimeError &error) {
            QFAIL(qPrintable(error.Description));
        }
    }

    void helpSaysMoreThanTheLabel() {
        for (const FieldDefinition &field : mDictionary->fields()) {
            if (field.hidden)
                continue;
            const QStringList help = wordsOf(field.help);
            QVERIFY2(help.size() >= kFewestHelpWords, qPrintable(field.id));
            const QStringList labelWords = wordsOf(field.label);
            const QSet<QString> label(labelWords.begin(), labelWords.end());
            const auto news = std::ranges::count_if(help, [&](const QString &word) { return !label.contains(word); });
            QVERIFY2(news >= kFewestHelpWords / 2, qPrintable(field.id));
        }
    }

    void noTwoHelpTextsAreEqual() {
        QHash<QString, QString> seen;
        for (const FieldDefinition &field : mDictionary->fields()) {
            if (field.hidden)
                continue;
            const QString other = seen.value(field.help);
            const bool instances = !other.isEmpty() && withoutDigits(other) == withoutDigits(field.id);
            QVERIFY2(other.isEmpty() || instances, qPrintable(field.id + u" and "_s + other));
            seen.insert(field.help, field.id);
        }
    }

    void gridsAndPositionsResolve() {
        for (const RecordStructure &structure : mDictionary->structures()) {
            for (const QString &grid : structure.grids)
                QCOMPARE(mDictionary->structureOf(grid), structure.index);
            if (!structure.position.isEmpty()) {
                QCOMPARE(mDictionary->structureByPosition(structure.position), structure.index);
                QVERIFY2(!structure.navigatorLabel.isEmpty(), qPrintable(structure.name));
                QVERIFY2(!structure.navigatorRecords.isEmpty(), qPrintable(structure.name));
            }
        }
    }

    void everyTreeFormHasACaptionAndChildrenAHead() {
        for (qint32 place = 0; place < qint32(mDictionary->tiers().size()); ++place) {
            const std::vector<TreeEntry> tree = mDictionary->tree(TierIndex(place));
            QVERIFY(!tree.empty());
            QVERIFY2(!tree.front().isChild, "a child without a head");
            QSet<QString> captions;
            for (std::size_t i = 0; i < tree.size(); ++i) {
                QVERIFY2(!tree[i].caption.isEmpty() && !captions.contains(tree[i].caption), qPrintable(tree[i].form));
                captions.insert(tree[i].caption);
                const bool hasChild = i + 1 < tree.size() && tree[i + 1].isChild;
                QVERIFY2(!tree[i].isGroup || hasChild, qPrintable(tree[i].form));
            }
        }
    }

    void everyStoredFieldOfATierHasItsPlaceInTheRadio() {
        // Serial number and band travel in the radio's identity.
        for (const FieldDefinition &field : mDictionary->fields())
            QVERIFY2(!field.isStored() || field.fact || field.at.has_value(), qPrintable(field.id));
    }

    void recordsOfAllTiersLieApartInTheImage() {
        const MemoryLayout &layout = mDictionary->layout();
        for (qint32 place = 0; place < qint32(mDictionary->tiers().size()); ++place) {
            const TierIndex tier(place);
            qint32 end = 0;
            for (const RecordStructure &structure : mDictionary->structures()) {
                const qint32 tables = structure.isScoped() ? mDictionary->structure(structure.parent).in(tier).most : 1;
                for (qint32 table = 1; table <= tables; ++table) {
                    const RecordAddress last{structure.isScoped() ? table : 0, structure.in(tier).most};
                    QCOMPARE(layout.countOffset(tier, structure.index, last.parent), end);
                    QCOMPARE(layout.recordOffset(tier, structure.index, {last.parent, 1}),
                             end + MemoryLayout::kCountBytes);
                    end += MemoryLayout::kCountBytes + structure.in(tier).most * structure.recordBytes;
                }
            }
            QCOMPARE(layout.imageSize(tier), end);
        }
    }

    void defaultsBelongToEachTier() {
        for (const FieldDefinition &field : mDictionary->fields()) {
            if (!field.hasItems())
                continue;
            const ListItem *item = field.itemByValue(field.defaultNumber);
            for (qint32 place = 0; place < qint32(mDictionary->tiers().size()); ++place) {
                const TierIndex tier(place);
                const bool fits = !field.tiers.contains(tier) || (item->tiers.contains(tier) && item->level <= 1);
                QVERIFY2(fits, qPrintable(field.id + u": the default is not an item of every tier"_s));
            }
        }
    }

    void formsShowFieldsOfTheirKind() {
        FormCatalogue forms;
        for (const QString &name : forms.names()) {
            const FormDefinition &form = forms.form(name);
            for (const PlacedControl &placed : form.placedControls())
                checkControl(form.name, *placed.control);
        }
        for (const FieldDefinition &field : mDictionary->fields())
            QVERIFY2(field.hidden || mShown.contains(field.id), qPrintable(field.id + u" is on no form"_s));
    }

    void accessAndVersionLevelsAreUsed() {
        QHash<qint32, int> byAccess;
        QSet<QString> formsOfNewerFields;
        int newer = 0;
        for (const FieldDefinition &field : mDictionary->fields()) {
            ++byAccess[field.access];
            newer += field.level == 2 ? 1 : 0;
            if (field.level == 2)
                formsOfNewerFields.insert(field.form);
        }
        QVERIFY(byAccess[20] >= 15 && byAccess[80] >= 25 && byAccess[40] > 0 && byAccess[60] > 0);
        QVERIFY(newer >= 20 && formsOfNewerFields.size() >= 5);
    }

    // Numbers with their units, tone names and the like read the same in every language.
    void everyShownTextHasItsRowInTheTranslationTable() {
        QFile file(QStringLiteral(KX_TRANSLATION_FILE));
        QVERIFY(file.open(QIODevice::ReadOnly));
        QSet<QString> rows;
        for (const QString &line : QString::fromUtf8(file.readAll()).split(u'\n'))
            rows.insert(line.section(u'\t', 0, 0));
        static const QRegularExpression word(u"[A-Za-z]{4}"_s);
        int told = 0;
        for (const QString &text : shownTexts()) {
            if (!text.contains(word))
                continue;
            QVERIFY2(rows.contains(text), qPrintable(text));
            ++told;
        }
        QVERIFY2(told > 1000, qPrintable(QString::number(told)));
    }

  private:
    [[nodiscard]] QStringList shownTexts() const {
        QStringList texts;
        for (const FieldDefinition &field : mDictionary->fields()) {
            texts << field.label << field.to.texts;
            for (const ListItem &item : field.items)
                texts << item.text;
        }
        for (const RecordStructure &structure : mDictionary->structures())
            texts << structure.label << structure.navigatorLabel << structure.navigatorRecords;
        for (const TreeEntry &entry : mDictionary->tree(TierIndex(qint32(mDictionary->tiers().size()) - 1)))
            texts << entry.caption;
        return texts;
    }

    void checkControl(const QString &form, const ControlDefinition &control) {
        if (control.typeName == u"fldGridField")
            checkColumns(form, control);
        else if (control.typeName == u"fldPageNavigator")
            QVERIFY2(mDictionary->structureOf(control.property(u"GuideUIID"_s).toString()).has_value(),
                     qPrintable(form + u' ' + control.name));
        else if (control.typeName.endsWith(u"Field"))
            checkShown(form, control.id(), control.typeName);
    }

    void checkColumns(const QString &form, const ControlDefinition &grid) {
        constexpr qsizetype kParts = 5; // number format, UIID, width, type, locked
        static const QRegularExpression width(u"^[0-9]+ *$"_s);
        const QStringList parts = grid.property(u"Fields"_s).toString().split(u'|');
        QVERIFY2(mDictionary->structureOf(grid.id()).has_value(), qPrintable(grid.id()));
        for (qsizetype first = 0; first + kParts <= parts.size(); first += kParts) {
            const QString &id = parts[first + 1];
            checkShown(form, id, parts[first + 3]);
            QVERIFY2(width.match(parts[first + 2]).hasMatch() &&
                         (parts[first + 4] == u"0" || parts[first + 4] == u"-1"),
                     qPrintable(id));
            QCOMPARE(mDictionary->structureOf(id), mDictionary->structureOf(grid.id()));
            const bool isFrequency = mDictionary->find(id)->decimals == FieldDefinition::kFrequencyDecimals;
            QCOMPARE(parts[first].trimmed(), isFrequency ? u"000.000000"_s : QString());
        }
    }

    // A control or a grid's column must be of the sort that its field's values are made for.
    void checkShown(const QString &form, const QString &id, const QString &as) {
        struct Fit {
            QLatin1StringView as;
            std::vector<FieldKind> kinds;
        };
        static const Fit kFits[] = {
            {QLatin1StringView("fldTextField"),
             {FieldKind::Number, FieldKind::Text, FieldKind::Derived, FieldKind::RecordNumber}},
            {QLatin1StringView("fldComboField"), {FieldKind::List}},
            {QLatin1StringView("fldCheckboxField"), {FieldKind::Flag}},
            {QLatin1StringView("fldIdTrackerField"), {FieldKind::Choice, FieldKind::Reference, FieldKind::Identity}},
            {QLatin1StringView("Text"),
             {FieldKind::Number, FieldKind::Text, FieldKind::Derived, FieldKind::RecordNumber}},
            {QLatin1StringView("Combo"), {FieldKind::List}},
            {QLatin1StringView("ID Tracker"), {FieldKind::Choice, FieldKind::Reference, FieldKind::Identity}},
        };
        const FieldDefinition *field = mDictionary->find(id);
        QVERIFY2(field != nullptr, qPrintable(form + u' ' + id));
        const auto *fit = std::ranges::find(kFits, as, &Fit::as);
        QVERIFY2(fit != std::end(kFits), qPrintable(as));
        QVERIFY2(std::ranges::count(fit->kinds, field->kind) == 1, qPrintable(id + u' ' + as));
        QVERIFY2(field->form == form || field->alsoOn.contains(form), qPrintable(form + u' ' + id));
        mShown.insert(id);
    }

    QSet<QString> mShown; // UIIDs that stand on a form
    std::unique_ptr<const Dictionary> mDictionary;
};

QTEST_GUILESS_MAIN(DictionaryDataTest)
#include "dictionary_data_test.moc"
