#include "control_classes.h"
#include "form_catalogue.h"
#include "form_definition_reader.h"
#include "form_json.h"
#include "run_time_error.h"

#include <QRegularExpression>
#include <QSet>
#include <QTest>

#include <algorithm>

namespace {
// A form "usrctlTest" around one piece of text.
QByteArray formWith(const QByteArray &controls) {
    return R"({"form": "usrctlTest", "ctlFormEnabler1": {"Caption": "Enabler"}, "controls": [)" + controls + "]}";
}

FormDefinition readForm(const QByteArray &text) {
    return FormDefinitionReader(QStringLiteral("usrctlTest.json")).read(text);
}

int countOf(const FormDefinition &form, auto predicate) {
    return int(std::ranges::count_if(form.placedControls(),
                                     [&](const PlacedControl &placed) { return predicate(placed.control->typeName); }));
}
} // namespace

class FormDefinitionsTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void catalogueHoldsEveryFormWithItsControls();
    void catalogueRefusesUnknownNameButNotOtherCase();
    void readerRefusesWhatDoesNotBelong_data();
    void readerRefusesWhatDoesNotBelong();
    void noFrameIsEmptyNorADataFieldBoundTwice();
    void callUpsNameAFormAndNumberTheirRecords();
    void absentKeyHasTheDefaultOfItsClass();
    void navigatorButtonsFollowTheSliderStyle();
    void tabOrderBeginsWithTheTabControlAndEndsWithTheNavigator();
    void jsonNamesParentsAndKeepsPropertyNames();
};

void FormDefinitionsTest::catalogueHoldsEveryFormWithItsControls() {
    struct Row {
        const char *name;
        int helpId, pages, fields, grids, navigators;
    };
    constexpr Row kRows[] = {
        {"usrctlSpecificationsKX4600", 101000, 0, 4, 0, 0},
        {"usrctlStartupKX4600", 0, 0, 13, 0, 0},
        {"usrctlUIPreferencesKX4600", 0, 0, 17, 1, 0},
        {"usrctlKeySettingsKX4600", 104000, 0, 8, 0, 0},
        {"usrctlProgIOKX4600", 0, 3, 17, 2, 0},
        {"usrctlEconomyKX4600", 401000, 0, 2, 0, 0},
        {"usrctlRxMonitorKX4600", 401000, 0, 3, 0, 0},
        {"usrctlChannelsKX4600", 404000, 4, 29, 1, 1},
        {"usrctlScanGroupsKX4600", 406000, 4, 33, 1, 1},
        {"usrctlNetworks", 0, 5, 46, 0, 1},
        {"usrctlNetworkData", 0, 7, 73, 1, 0},
        {"usrctlNetworkFeatures", 409000, 0, 11, 0, 1},
        {"usrctlNetworkPTT", 409000, 0, 13, 0, 1},
        {"usrctlPTT", 0, 3, 39, 0, 0},
        {"usrctlEmergencyKX4600", 0, 3, 22, 0, 1},
        {"usrctlAlerts", 0, 6, 34, 0, 1},
        {"usrctlSelcallSetupKX4600", 0, 2, 13, 1, 1},
        {"usrctlSelcallToneSettings", 519000, 0, 27, 0, 1},
        {"usrctlFixedFormatBursts", 0, 0, 0, 6, 1},
        {"usrctlFreeFormatKX4600", 513000, 0, 11, 0, 1},
        {"usrctlFreeFormatDetail", 513000, 0, 11, 0, 1},
        {"usrctlDTMF", 0, 2, 13, 1, 1},
        {"usrctlDTMFPatch", 0, 0, 20, 0, 1},
        {"usrctlType99", 0, 0, 18, 0, 1},
        {"usrctlMDC1200", 0, 0, 5, 0, 1},
        {"usrctlControlStatusKX4600", 0, 0, 0, 1, 1},
    };
    FormCatalogue catalogue;
    QCOMPARE(catalogue.names().size(), std::ssize(kRows));
    for (const Row &row : kRows) {
        const FormDefinition &form = catalogue.form(QString::fromLatin1(row.name));
        QVERIFY2(form.helpId() == row.helpId && int(form.pages.size()) == row.pages, row.name);
        QVERIFY2(countOf(form, &ControlClasses::isField) == row.fields, row.name);
        QVERIFY2(countOf(form, [](const QString &type) { return type == u"fldGridField"; }) == row.grids, row.name);
        QVERIFY2(countOf(form, [](const QString &type) { return type == u"fldPageNavigator"; }) == row.navigators,
                 row.name);
    }
}

void FormDefinitionsTest::catalogueRefusesUnknownNameButNotOtherCase() {
    FormCatalogue catalogue;
    const FormDefinition &form = catalogue.form(QStringLiteral("USRCTLECONOMYkx4600"));
    QCOMPARE(form.name, QStringLiteral("usrctlEconomyKX4600"));
    QCOMPARE(&catalogue.form(QStringLiteral("usrctlEconomyKX4600")), &form);
    try {
        (void)catalogue.form(QStringLiteral("usrctlEconomy"));
        QFAIL("an unknown form was found");
    } catch (const RunTimeError &error) {
        QCOMPARE(error.Number, ErrorNumber::kCollectionKey);
        QVERIFY(error.Description.contains(QStringLiteral("usrctlEconomy")));
    }
}

void FormDefinitionsTest::readerRefusesWhatDoesNotBelong_data() {
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("complaint"); // pieces joined by ".*"
    const auto refuse = [](const char *name, const QByteArray &text, const char *complaint) {
        QTest::newRow(name) << text << QString::fromLatin1(complaint);
    };
    const auto control = [&](const char *name, const QByteArray &text, const char *complaint) {
        refuse(name, formWith(text), complaint);
    };
    refuse("no JSON", "{", "usrctlTest.json.*no JSON");
    refuse("another form's name", R"({"form": "usrctlOther"})", "usrctlTest.json.*usrctlOther");
    refuse("unknown key of the form", R"({"form": "usrctlTest", "Controls": []})", "usrctlTest.json.*\"Controls\"");
    refuse("unknown key of the enabler", R"({"form": "usrctlTest", "ctlFormEnabler1": {"HelpId": 1}})",
           "ctlFormEnabler1.*\"HelpId\"");
    refuse("page without a caption", R"({"form": "usrctlTest", "pages": [{"controls": []}]})", "page.*Caption");
    refuse("unknown key of a page", R"({"form": "usrctlTest", "pages": [{"Caption": "A", "Name": "x"}]})",
           "page \"A\".*\"Name\"");
    control("unknown key", R"({"class": "fldTextField", "name": "a", "Factor": 0.5})",
            "usrctlTest.json: a.*\"Factor\"");
    control("key in other case", R"({"class": "fldTextField", "name": "a", "caption": "A"})", "a.*\"caption\"");
    control("key of another class", R"({"class": "fldCheckboxField", "name": "a", "ReadOnly": true})",
            "a.*\"ReadOnly\"");
    control("unknown class", R"({"class": "fldLabel", "name": "a"})", "a.*fldLabel");
    control("tab control among the controls", R"({"class": "SSTab", "name": "a"})", "a.*SSTab");
    control("no name", R"({"class": "fldTextField"})", "without a name");
    control("name twice", R"({"class": "Frame", "name": "a"}, {"class": "fldFrame", "name": "A"})", "A.*twice");
    control("name twice, once inside",
            R"({"class": "Frame", "name": "a", "controls": [{"class": "Frame", "name": "a"}]})", "a.*twice");
    control("name of the tab control", R"({"class": "Frame", "name": "SSTab1"})", "SSTab1.*twice");
    control("text for a number", R"({"class": "fldTextField", "name": "a", "NavigatorStream": "1"})",
            "a.*NavigatorStream");
    control("half for a whole number", R"({"class": "fldTextField", "name": "a", "NavigatorStream": 1.5})",
            "a.*NavigatorStream");
    control("number for a flag", R"({"class": "fldTextField", "name": "a", "ReadOnly": 1})", "a.*ReadOnly");
    control("factor above 1", R"({"class": "fldTextField", "name": "a", "LabelWidthFactor": 1.01})",
            "a.*LabelWidthFactor");
    control("stored default", R"({"class": "fldTextField", "name": "a", "LabelWidthFactor": 0.6})",
            "a.*LabelWidthFactor.*default");
    control("stored default that follows from another key",
            R"({"class": "fldPageNavigator", "name": "a", "SliderStyle": 2, "ButtonAdd": true})",
            "a.*ButtonAdd.*default");
    control("controls in a field", R"({"class": "fldTextField", "name": "a", "controls": []})", "a.*holds no controls");
    control("controls that are no list", R"({"class": "Frame", "name": "a", "controls": {}})", "a.*no list");
    control("grid of a navigator that is not there",
            R"({"class": "fldPageNavigator", "name": "a", "GridControl": "fldGrid"})", "a.*GridControl");
    control("grid of a navigator that is a frame",
            R"({"class": "Frame", "name": "f"}, {"class": "fldPageNavigator", "name": "a", "GridControl": "f"})",
            "a.*GridControl");
    control("inner navigator that is not there", R"({"class": "fldPageNavigator", "name": "a", "SubNavigator": "b"})",
            "a.*SubNavigator");
}

void FormDefinitionsTest::readerRefusesWhatDoesNotBelong() {
    QFETCH(QByteArray, text);
    QFETCH(QString, complaint);
    try {
        (void)readForm(text);
        QFAIL("it was read");
    } catch (const RunTimeError &error) {
        QCOMPARE(error.Number, ErrorNumber::kBadArgument);
        QVERIFY2(QRegularExpression(complaint).match(error.Description).hasMatch(), qPrintable(error.Description));
    }
}

// An empty frame would hide itself; a field bound twice on one form would show two states of one value.
void FormDefinitionsTest::noFrameIsEmptyNorADataFieldBoundTwice() {
    FormCatalogue catalogue;
    for (const QString &name : catalogue.names()) {
        QSet<QString> ids;
        for (const PlacedControl &placed : catalogue.form(name).placedControls()) {
            const ControlDefinition &control = *placed.control;
            QVERIFY2(!ControlClasses::isFrame(control.typeName) || !control.controls.empty(), qPrintable(control.name));
            if (!ControlClasses::isField(control.typeName))
                continue;
            QVERIFY2(control.id() != u"Undefined" && !ids.contains(control.id()), qPrintable(name + control.id()));
            ids.insert(control.id());
        }
    }
}

void FormDefinitionsTest::callUpsNameAFormAndNumberTheirRecords() {
    FormCatalogue catalogue;
    QList<int> records;
    for (const PlacedControl &placed : catalogue.form(QStringLiteral("usrctlFreeFormatKX4600")).placedControls()) {
        if (placed.control->typeName != u"fldSubFormCallUp")
            continue;
        QVERIFY(catalogue.contains(placed.control->property(QStringLiteral("SubFormControlName")).toString()));
        records.push_back(placed.control->property(QStringLiteral("SubFormRecordNr")).toInt());
    }
    QCOMPARE(records, QList<int>({0, 2, 3, 4, 5, 6, 7})); // the first gets its number at the navigator's first move
}

void FormDefinitionsTest::absentKeyHasTheDefaultOfItsClass() {
    const FormDefinition form = readForm(formWith(R"({"class": "fldTextField", "name": "a"})"));
    const ControlDefinition &control = form.controls.front();
    QCOMPARE(control.caption(), QStringLiteral("TextField"));
    QCOMPARE(control.id(), QStringLiteral("Undefined"));
    QCOMPARE(control.labelWidthFactor(), 0.6);
    try {
        (void)control.property(QStringLiteral("ComboIndex"));
        QFAIL("a key of another class was answered");
    } catch (const RunTimeError &error) {
        QCOMPARE(error.Number, ErrorNumber::kCollectionKey);
    }
}

void FormDefinitionsTest::navigatorButtonsFollowTheSliderStyle() {
    const FormDefinition form = readForm(formWith(R"(
        {"class": "fldPageNavigator", "name": "a", "SliderStyle": 1, "ButtonAdd": true},
        {"class": "fldPageNavigator", "name": "b", "SliderStyle": 2, "ButtonAdd": false})"));
    const QString add = QStringLiteral("ButtonAdd");
    const QString remove = QStringLiteral("ButtonDelete");
    QCOMPARE(form.controls[0].property(add).toBool(), true);
    QCOMPARE(form.controls[0].property(remove).toBool(), false);
    QCOMPARE(form.controls[1].property(add).toBool(), false);
    QCOMPARE(form.controls[1].property(remove).toBool(), true);
}

void FormDefinitionsTest::tabOrderBeginsWithTheTabControlAndEndsWithTheNavigator() {
    const FormDefinition form = readForm(R"({"form": "usrctlTest",
        "pages": [{"Caption": "1", "controls": [
                     {"class": "Frame", "name": "f", "controls": [{"class": "fldTextField", "name": "x"}]},
                     {"class": "fldTextField", "name": "y"}]},
                  {"Caption": "2", "controls": [{"class": "fldTextField", "name": "z"}]}],
        "controls": [{"class": "fldPageNavigator", "name": "n"}, {"class": "fldTextField", "name": "last"}]})");
    QStringList order;
    QList<int> pages;
    for (const PlacedControl &placed : form.placedControls()) {
        QCOMPARE(placed.tabIndex, int(order.size()));
        order.push_back(placed.control->name);
        pages.push_back(placed.page);
    }
    QCOMPARE(order.join(u' '), QStringLiteral("SSTab1 f x y z last n"));
    QCOMPARE(pages, QList<int>({-1, 0, 0, 0, 1, -1, -1}));
}

void FormDefinitionsTest::jsonNamesParentsAndKeepsPropertyNames() {
    const FormDefinition form = readForm(R"({"form": "usrctlTest", "ctlFormEnabler1": {"HelpID": 7},
        "pages": [{"Caption": "1", "controls": [{"class": "Frame", "name": "f", "controls": [
            {"class": "fldTextField", "name": "x", "ID": "Tx", "ReadOnly": true}]}]}],
        "controls": [{"class": "fldPageNavigator", "name": "n"}]})");
    const QJsonObject json = FormJson::ofForm(form);
    QCOMPARE(json[QStringLiteral("helpId")].toInt(), 7);
    QCOMPARE(json[QStringLiteral("pages")][0][QStringLiteral("controls")].toArray(), QJsonArray({QStringLiteral("f")}));
    const QJsonArray controls = json[QStringLiteral("controls")].toArray();
    const QString parent = QStringLiteral("parent");
    QVERIFY(controls[0][parent].isNull());
    QCOMPARE(controls[1][parent].toString(), QStringLiteral("SSTab1"));
    QCOMPARE(controls[2][parent].toString(), QStringLiteral("f"));
    QCOMPARE(controls[2][QStringLiteral("id")].toString(), QStringLiteral("Tx"));
    QCOMPARE(controls[2][QStringLiteral("properties")].toObject(),
             QJsonObject({{QStringLiteral("ID"), QStringLiteral("Tx")}, {QStringLiteral("ReadOnly"), true}}));
    QVERIFY(controls[3][parent].isNull() && controls[3][QStringLiteral("id")].isNull());
}

QTEST_GUILESS_MAIN(FormDefinitionsTest)
#include "tst_form_definitions.moc"
