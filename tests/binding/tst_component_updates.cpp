#include "bound_form.h"
#include "rows.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

class tst_ComponentUpdates : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void updateReachesEveryFieldOfTheRecord() {
        BoundForm form;
        auto &first = form.addText(u"txtName"_s);
        auto &second = form.add<FakeIdTracker>(u"idtName"_s);
        auto &otherRecord = form.addText(u"oldName"_s);
        form.addText(u"txtname"_s); // ids are compared case-sensitively
        form.add<FakeGrid>(u"grdList"_s, u"Tone|Name"_s);
        first.recordNr = second.recordNr = 1;
        otherRecord.recordNr = 2;
        first.notFound = true;
        form.bind();
        form.enabler->Ienabler_UpdateUIFieldByUIID(u"Name"_s, 1, u"Undefined"_s);
        QCOMPARE(form.log.take(),
                 QStringList({u"txtName.SetValue(Undefined, false)"_s, u"idtName.SetValue(None, false)"_s,
                              u"grdList.SetCell(Name, 1, Undefined)"_s}));
        QVERIFY(!first.notFound);
    }

    void updateMovesNavigators() {
        for (const auto &[uiid, value, move] : Rows<QString, QVariant, QString>{
                 {"guide: to the record", u"Guide"_s, u"Name"_s, u"navGuide.Position(3)"_s},
                 {"stored position: to the value", u"Pos"_s, u"7"_s, u"navGuide.Position(7)"_s},
                 {"stored position: already there", u"Pos"_s, 2.0, {}},
                 {"stored position: no number", u"Pos"_s, u"Undefined"_s, {}},
             }) {
            BoundForm form;
            auto &navigator = form.add<FakeNavigator>(u"navGuide"_s);
            navigator.storageUIID = u"Pos"_s;
            navigator.position = 2;
            form.bind();
            form.enabler->Ienabler_UpdateUIFieldByUIID(uiid, 3, value);
            QCOMPARE(form.log.take().filter(u"navGuide"_s).join(u' '), move);
        }
    }

    void updateMarksNoEdit() {
        ComboForm form;
        form.enabler->Ienabler_UpdateUIFieldByUIID(u"Tone"_s, 0, 4);
        QCOMPARE(form.log.take(), QStringList(u"cboTone.SetValue(4, false)"_s));
        QCOMPARE(form.combo.value, QVariant(4));
    }

    void refreshFillsEachGridWithTheColumn() {
        BoundForm form;
        form.add<FakeGrid>(u"grdOne"_s, u"Name|Tone"_s);
        form.add<FakeGrid>(u"grdTwo"_s, u"Power"_s);
        form.add<FakeGrid>(u"grdThree"_s, u"Tone"_s);
        form.bind();
        form.enabler->Ienabler_RefreshGridByUIID(u"Tone"_s);
        QCOMPARE(form.log.take(), QStringList({u"GetGridData(Name|Tone, true, 0)"_s, u"GetGridData(Tone, true, 0)"_s}));
    }

    void enableStopsAtTheFirstField() {
        BoundForm form;
        auto &first = form.addText(u"txtName"_s);
        form.add<FakeGrid>(u"grdList"_s, u"Name"_s);
        form.add<FakeNavigator>(u"navTone"_s);
        form.add<FakeGrid>(u"grdTones"_s, u"Tone"_s);
        form.add<FakeSlider>(u"sldTone"_s);
        form.add<FakeSlider>(u"barTone"_s);
        first.notFound = true;
        form.bind();
        form.enabler->Ienabler_SetEnableDisableByUIID(u"Tone"_s, false);
        QCOMPARE(form.log.take(), QStringList({u"grdTones.SetColumnDisabled(Tone)"_s, u"sldTone.SetDisabled()"_s}));
        form.enabler->Ienabler_SetEnableDisableByUIID(u"Name"_s, true);
        QCOMPARE(form.log.take(), QStringList(u"txtName.SetEnabled()"_s));
        QVERIFY(!first.notFound);
    }

    void invisibleFieldStaysInvisible() {
        BoundForm form;
        auto &text = form.addText(u"txtName"_s);
        text.fieldVisible = false;
        text.notFound = true;
        form.bind();
        form.enabler->Ienabler_SetEnableDisableByUIID(u"Name"_s, true);
        QCOMPARE(form.log.take(), QStringList());
        QVERIFY(!text.fieldVisible);
        QVERIFY(!text.notFound);
    }

    void unknownUIIDEmptiesTheFirstFieldOnly() {
        BoundForm form;
        form.addText(u"txtName"_s);
        form.addText(u"oldName"_s);
        form.bind();
        form.enabler->Ienabler_UIIDNotFound(u"name"_s);
        form.enabler->Ienabler_UIIDNotFound(u"Name"_s);
        QCOMPARE(form.log.take(), QStringList(u"txtName.UIIDNotFound()"_s));
    }

    void gridListsAreTranslatedInPlace() {
        BoundForm form;
        auto &grid = form.add<FakeGrid>(u"grdList"_s, u"Tone"_s);
        form.services.translate({u"Off|Aus"_s, u"Undefined|Unbestimmt"_s});
        const QStringList rows{u"Off|Off"_s, u"Undefined|1"_s, u"High|2"_s};
        form.component.when(u"GetComboItems"_s).answers(rows);
        form.component.when(u"GetIDItems"_s).answers(rows);
        form.bind();
        XArrayDB combo;
        XArrayDB ids;
        qint32 comboType = 0;
        grid.raise(FieldEvent(u"GetComboItems"_s, in(u"Tone"_s), in(qint32(1)), out(combo), out(comboType)));
        grid.raise(FieldEvent(u"GetIDItems"_s, in(u"Tone"_s), in(qint32(1)), out(ids)));
        QCOMPARE(combo.Value(0, 0), QVariant(u"Aus"_s));
        QCOMPARE(combo.Value(0, 1), QVariant(u"Off"_s)); // what is stored is never translated
        QCOMPARE(combo.Value(1, 0), QVariant(u"Undefined"_s));
        QCOMPARE(ids.Value(0, 0), QVariant(u"Off"_s));
    }

    void gridLabelIsTranslated() {
        BoundForm form;
        auto &grid = form.add<FakeGrid>(u"grdList"_s, u"Tone"_s);
        form.services.translate({u"Tone|Ton"_s});
        form.component.when(u"GetLabel"_s, u"Tone"_s).answers(u"Tone"_s);
        form.component.when(u"GetValidationString"_s, u"List"_s).answers(u"0123"_s);
        form.bind();
        QString label;
        QString validation;
        grid.raise(FieldEvent(u"GetLabel"_s, in(u"Tone"_s), out(label)));
        grid.raise(FieldEvent(u"GetValidationString"_s, out(validation)));
        QCOMPARE(label, u"Ton"_s);
        QCOMPARE(validation, u"0123"_s);
    }
};

QTEST_GUILESS_MAIN(tst_ComponentUpdates)
#include "tst_component_updates.moc"
