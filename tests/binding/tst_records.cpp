#include "bound_form.h"
#include "rows.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

// Navigator moves and the record commands of navigators and grids.
class tst_Records : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void aMoveFillsTheStream() {
        BoundForm form;
        auto &navigator = form.add<FakeNavigator>(u"navGuide"_s);
        auto &text = form.addText(u"txtName"_s);
        auto &hidden = form.addText(u"txtHidden"_s);
        auto &other = form.addText(u"txtOther"_s);
        auto &follower = form.add<FakeNavigator>(u"navFollower"_s);
        navigator.stream = text.stream = hidden.stream = follower.stream = 2;
        other.stream = 1;
        hidden.fieldVisible = false;
        navigator.position = 3;
        form.component.when(u"GetValue"_s, u"Name"_s, 3).answers(u"third"_s);
        form.component.when(u"GetFieldEnabled"_s, u"Name"_s, 3).answers(false);
        form.bind();
        navigator.raise(FieldEvent(u"ChangedPosition"_s, in(u"Pos"_s), in(qint32(2)), in(qint32(3))));
        QCOMPARE(form.log.take(),
                 QStringList({u"GetValue(Name, 3)"_s, u"txtName.SetRecordNumber(3)"_s,
                              u"txtName.SetValue(third, false)"_s, u"GetFieldEnabled(Name, 3)"_s,
                              u"txtName.SetDisabled()"_s, u"GetValue(Hidden, 3)"_s, u"txtHidden.SetRecordNumber(3)"_s,
                              u"txtHidden.SetValue(, false)"_s, u"navFollower.Position(3)"_s}));
        QVERIFY(!hidden.fieldVisible);
        QCOMPARE(other.recordNr, 0);
    }

    void aMoveShowsWhatTheTypeCanShow() {
        for (const auto &[typeName, line] : Rows<QString, QString>{
                 {"checkbox", u"fldCheckboxField"_s, u"fldThing.SetValue(0, false)"_s},
                 {"option", u"fldOptionButtonField"_s, u"fldThing.SetValue(0, false)"_s},
                 {"slider", u"fldSliderField"_s, u"fldThing.SetValue(0, false)"_s},
                 {"combo", u"fldComboField"_s, u"fldThing.SetValue(0, false)"_s},
                 {"text empties itself", u"fldTextField"_s, u"fldThing.SetValue(Undefined, false)"_s},
             }) {
            BoundForm form;
            auto &navigator = form.add<FakeNavigator>(u"navGuide"_s);
            form.add<FakeField>(u"fldThing"_s, typeName);
            navigator.position = 1;
            form.component.when(u"GetValue"_s).answersUndefined();
            form.bind();
            form.enabler->Notify_ChangedPosition(form.itemOf(navigator));
            QVERIFY(form.log.lines().contains(line));
        }
    }

    void aMoveMarksNoEdit() {
        BoundForm form;
        auto &navigator = form.add<FakeNavigator>(u"navGuide"_s);
        auto &text = form.addText(u"txtName"_s);
        auto &tracker = form.add<FakeIdTracker>(u"idtScan"_s);
        form.bind();
        form.component.when(u"GetFieldEnabled"_s, u"Name"_s).runs([&text] { text.raise(FieldEvent(u"Change"_s)); });
        form.component.when(u"GetUIWidth"_s, u"Scan"_s).runs([&tracker] {
            tracker.raise(FieldEvent(u"Initialise"_s));
            tracker.raise(FieldEvent(u"Click"_s));
        });
        form.enabler->Notify_ChangedPosition(form.itemOf(navigator));
        QVERIFY(form.log.linesOf(u"SetDataChanged"_s).isEmpty());
        QVERIFY(form.log.linesOf(u"SetValue"_s).isEmpty());
        QCOMPARE(form.log.linesOf(u"GetUIWidth"_s).size(), 1);
        QVERIFY(!form.services.process.gblnInitialisingFields);
    }

    void innerNavigatorStartsAtItsFirstRecord() {
        BoundForm form;
        auto &outer = form.add<FakeNavigator>(u"navOuter"_s);
        auto &inner = form.add<FakeNavigator>(u"navInner"_s);
        auto &third = form.add<FakeNavigator>(u"navThird"_s);
        outer.stream = 1;
        inner.stream = 2;
        third.stream = 3;
        inner.position = 1;
        outer.subNavigator = u"navInner"_s;
        third.subNavigator = u"navOuter"_s; // names it from the other side: no effect
        form.component.when(u"GetNumberOfRecords"_s).answers(4);
        form.bind();
        form.enabler->Notify_ChangedPosition(form.itemOf(outer));
        QCOMPARE(form.log.take().mid(3), QStringList({u"GetNumberOfRecords(Inner)"_s, u"navInner.NumberRecords(4)"_s,
                                                      u"navInner.Position(-1)"_s, u"navInner.Position(1)"_s}));
    }

    void leavingARecord() {
        const QString read = u"GetValue(Pos, 1)"_s;
        const QString check = u"ValidateForm(usrctlTest, Test, false)"_s;
        const QString write = u"SetValue(Pos, 5, 1, true)"_s;
        const QString back = u"grdList.SetSelectedRow(1)"_s;

        for (const auto &[stored, valid, taken, accepted, lines] : Rows<QVariant, bool, bool, bool, QStringList>{
                 {"valid", 2, true, true, true, QStringList({read, check, write})},
                 {"stored 0 is not checked", 0, false, true, true, QStringList({read, write})},
                 {"stored undefined is not checked", u"Undefined"_s, false, true, true, QStringList({read, write})},
                 {"same record is not checked", u"5"_s, false, true, true, QStringList({read, write})},
                 {"invalid: the grid goes back", 2, false, true, false, QStringList({read, check, read, back})},
                 {"the component refuses the position", 2, true, false, false,
                  QStringList({read, check, write, read, back})},
             }) {
            BoundForm form;
            auto &navigator = form.add<FakeNavigator>(u"navGuide"_s);
            form.add<FakeGrid>(u"grdList"_s, u"A"_s);
            navigator.gridControl = u"grdList"_s;
            form.component.when(u"GetValue"_s, u"Pos"_s).answers(stored);
            form.component.when(u"ValidateForm"_s).answers(valid);
            form.component.when(u"SetValue"_s).answers(taken);
            form.bind();
            bool result = true;
            navigator.raise(FieldEvent(u"ChangePositionStorage"_s, in(u"Pos"_s), in(qint32(5)), out(result)));
            QCOMPARE(result, accepted);
            QCOMPARE(form.log.take(), lines);
        }
    }

    void navigatorAndGridFollowEachOtherWithoutALoop() {
        BoundForm form;
        auto &navigator = form.add<FakeNavigator>(u"navGuide"_s);
        auto &grid = form.add<FakeGrid>(u"grdList"_s, u"A"_s);
        form.add<FakeGrid>(u"grdOther"_s, u"A"_s);
        navigator.gridControl = u"grdList"_s;
        navigator.storageUIID = u"Pos"_s;
        navigator.position = 2;
        form.bind();
        grid.raise(FieldEvent(u"RowSelectionChanged"_s, in(qint32(3))));
        QCOMPARE(form.log.take(), QStringList({u"navGuide.Position(4)"_s, u"GetValue(Pos, 1)"_s,
                                               u"SetValue(Pos, 4, 1, true)"_s, u"grdList.SetSelectedRow(3)"_s}));
        grid.raise(FieldEvent(u"RowSelectionChanged"_s, in(qint32(3)))); // the row that the navigator has just selected
        QCOMPARE(form.log.take(), QStringList());
    }

    void navigatorCommands() {
        const QString count = u"GetNumberOfRecords(Guide)"_s;
        const QString counted = u"navGuide.NumberRecords(4)"_s;

        for (const auto &[event, accepted, lines] : Rows<QString, bool, QStringList>{
                 {"add", u"AddRecordNavigator"_s, true,
                  QStringList({u"AddRecord(Guide, G, 4)"_s, count, counted, u"navGuide.Position(4)"_s})},
                 {"add refused", u"AddRecordNavigator"_s, false, QStringList(u"AddRecord(Guide, G, 4)"_s)},
                 {"insert", u"InsertRecordNavigator"_s, true,
                  QStringList({u"InsertRecord(Guide, 2, G)"_s, count, counted})},
                 {"insert refused", u"InsertRecordNavigator"_s, false, QStringList(u"InsertRecord(Guide, 2, G)"_s)},
                 {"repeat", u"RepeatRecordNavigator"_s, true,
                  QStringList(
                      {u"RepeatRecord(Guide, 2, G)"_s, count, counted, u"navGuide.Position(3)"_s, count, counted})},
                 {"repeat refused", u"RepeatRecordNavigator"_s, false, QStringList(u"RepeatRecord(Guide, 2, G)"_s)},
             }) {
            BoundForm form;
            auto &navigator = form.add<FakeNavigator>(u"navGuide"_s);
            navigator.gridId = u"G"_s;
            navigator.numberRecords = 3;
            navigator.position = 2;
            form.component.when(u"GetNumberOfRecords"_s).answers(4);
            if (!accepted) {
                for (const QString &operation : {u"AddRecord"_s, u"InsertRecord"_s, u"RepeatRecord"_s})
                    form.component.when(operation).refuses();
            }
            form.bind();
            navigator.raise(FieldEvent(event, in(static_cast<Inavigator *>(&navigator))));
            QCOMPARE(form.log.take(), lines);
        }
    }

    void navigatorDelete() {
        const QString deleted = u"DeleteRecord(Guide, 3)"_s;
        const QString asked = u"GetRecordDeletedRefreshNeeded()"_s;
        const QString count = u"GetNumberOfRecords(Guide)"_s;

        for (const auto &[accepted, refill, left, lines] : Rows<bool, bool, qint32, QStringList>{
                 {"refused", false, true, 3, QStringList(deleted)},
                 {"a later record takes the place", true, false, 5,
                  QStringList(
                      {deleted, asked, count, u"navGuide.NumberRecords(5)"_s, u"navGuide.ForcePositionChange(3)"_s})},
                 {"the last of several: the new end", true, false, 2,
                  QStringList(
                      {deleted, asked, count, u"navGuide.NumberRecords(2)"_s, u"navGuide.ForcePositionChange(2)"_s})},
                 {"all grids are filled anew", true, true, 5,
                  QStringList({deleted, asked, u"GetGridData(A, true, 0)"_s, u"GetGridData(B, true, 0)"_s, count,
                               u"navGuide.NumberRecords(5)"_s, u"navGuide.ForcePositionChange(3)"_s})},
                 {"the last one disables the stream", true, false, 0,
                  QStringList({deleted, asked, count, u"navGuide.NumberRecords(0)"_s, u"txtName.SetDisabled()"_s})},
             }) {
            BoundForm form;
            auto &navigator = form.add<FakeNavigator>(u"navGuide"_s);
            form.add<FakeGrid>(u"grdA"_s, u"A"_s);
            form.add<FakeGrid>(u"grdB"_s, u"B"_s);
            auto &inStream = form.addText(u"txtName"_s);
            form.addText(u"txtOther"_s);
            auto &second = form.add<FakeNavigator>(u"navSecond"_s);
            navigator.stream = inStream.stream = second.stream = 6;
            navigator.position = 3;
            form.component.when(u"DeleteRecord"_s).answers(accepted);
            form.component.when(u"GetRecordDeletedRefreshNeeded"_s).answers(refill);
            form.component.when(u"GetNumberOfRecords"_s).answers(left);
            form.bind();
            bool result = false;
            navigator.raise(
                FieldEvent(u"DeleteRecordNavigator"_s, in(static_cast<Inavigator *>(&navigator)), out(result)));
            QVERIFY(result); // whatever happens
            QCOMPARE(form.log.take(), lines);
        }
    }

    void gridCommands() {
        const QStringList walk{u"GetNumberOfRecords(Guide)"_s, u"navGuide.NumberRecords(8)"_s};
        const auto walked = [&walk](const QStringList &first) { return first + walk; };

        for (const auto &[event, recordNr, accepted, lines] : Rows<QString, qint32, bool, QStringList>{
                 {"add", u"AddRecord"_s, 1, true,
                  walked(
                      {u"AddRecord(List, ListID, 0)"_s, u"GetGridData(A|B, true, 8)"_s, u"grdList.AppendRow(row)"_s}) +
                      QStringList(u"navGuide.Position(8)"_s)},
                 {"add refused: the position stays", u"AddRecord"_s, 1, false,
                  walked({u"AddRecord(List, ListID, 0)"_s})},
                 {"insert", u"InsertRecord"_s, 4, true,
                  walked({u"InsertRecord(List, 4, ListID)"_s, u"GetGridData(A|B, true, 4)"_s,
                          u"grdList.InsertRow(row, 3)"_s})},
                 {"insert into an empty grid", u"InsertRecord"_s, 0, true,
                  walked({u"InsertRecord(List, 1, ListID)"_s, u"GetGridData(A|B, true, 1)"_s,
                          u"grdList.InsertRow(row, 0)"_s})},
                 {"insert refused", u"InsertRecord"_s, 4, false, walked({u"InsertRecord(List, 4, ListID)"_s})},
                 {"repeat", u"RepeatRecord"_s, 4, true,
                  walked({u"RepeatRecord(List, 4, ListID)"_s, u"GetGridData(A|B, true, 5)"_s,
                          u"grdList.InsertRow(row, 4)"_s})},
                 {"repeat without a record", u"RepeatRecord"_s, 0, true, {}},
             }) {
            BoundForm form;
            auto &grid = form.add<FakeGrid>(u"grdList"_s, u"A|B"_s);
            auto &navigator = form.add<FakeNavigator>(u"navGuide"_s);
            form.add<FakeNavigator>(u"navUnbound"_s);
            grid.recordNr = recordNr;
            navigator.gridControl = u"grdList"_s;
            form.component.when(u"AddRecord"_s).answers(8);
            form.component.when(u"GetGridData"_s).answers(QStringList(u"row|x"_s));
            form.component.when(u"GetNumberOfRecords"_s).answers(8);
            if (!accepted) {
                for (const QString &operation : {u"AddRecord"_s, u"InsertRecord"_s, u"RepeatRecord"_s})
                    form.component.when(operation).refuses();
            }
            form.bind();
            grid.raise(FieldEvent(event));
            QCOMPARE(form.log.take(), lines);
        }
    }

    void gridDelete() {
        const QString fill = u"GetGridData(A, true, 0)"_s;
        const QStringList walk{u"GetNumberOfRecords(Guide)"_s, u"navGuide.NumberRecords(1)"_s};

        for (const auto &[accepted, refill, left, wantedDeletedOK, lines] : Rows<bool, bool, qint32, bool, QStringList>{
                 {"filled anew", true, true, 1, true,
                  QStringList(fill) + walk + QStringList(u"navGuide.ForcePositionChange(1)"_s)},
                 {"refused", false, true, 1, false, walk},
                 {"the component renews the rows", true, false, 1, true, walk},
                 {"none left", true, true, 0, true,
                  QStringList({fill, walk.first(), u"navGuide.NumberRecords(0)"_s, u"txtName.SetDisabled()"_s})},
             }) {
            BoundForm form;
            auto &grid = form.add<FakeGrid>(u"grdList"_s, u"A"_s);
            auto &navigator = form.add<FakeNavigator>(u"navGuide"_s);
            auto &text = form.addText(u"txtName"_s);
            navigator.gridControl = u"grdList"_s;
            navigator.stream = text.stream = 2;
            navigator.position = 1;
            form.component.when(u"DeleteRecord"_s).answers(accepted);
            form.component.when(u"GetRecordDeletedRefreshNeeded"_s).answers(refill);
            form.component.when(u"GetNumberOfRecords"_s).answers(left);
            form.bind();
            bool deletedOK = false;
            grid.raise(FieldEvent(u"DeleteRecord"_s, out(deletedOK)));
            QCOMPARE(deletedOK, wantedDeletedOK);
            QCOMPARE(form.log.take().mid(2), lines);
        }
    }

    void aMissingObjectReachesTheGridsCommand() {
        for (const QString &event : {u"AddRecord"_s, u"InsertRecord"_s, u"RepeatRecord"_s, u"DeleteRecord"_s}) {
            BoundForm form;
            auto &grid = form.add<FakeGrid>(u"grdFreq"_s, u"Freq|Name"_s);
            bool deleted = false;
            const FieldEvent command(event, out(deleted));
            form.bind();
            form.component.when(event).raises({ErrorNumber::kMissingObject, {}, u"not set"_s});
            QString told;
            try {
                grid.raise(command);
            } catch (const RunTimeError &error) {
                QCOMPARE(error.Number, ErrorNumber::kMissingObject);
                told = error.Description;
            }
            QVERIFY2(told.contains(u"Notify_"_s + event) && told.contains(u"frmField_ObjectEvent"_s), qPrintable(told));
            form.component.when(event).raises({ErrorNumber::kConversion, {}, u"mismatch"_s});
            form.services.errorSink.expectReport();
            grid.raise(command);
            QCOMPARE(form.services.errorSink.reports().size(), 1);
        }
    }

    void pasteNeedsText() {
        BoundForm form;
        auto &grid = form.add<FakeGrid>(u"grdList"_s, u"A"_s);
        form.bind();
        const FieldEvent paste(u"ImportRecordByPaste"_s, in(u"A"_s), in(u"1"_s));
        grid.raise(paste);
        QCOMPARE(form.log.take(), QStringList());
        form.services.clipboard.SetText(u"x"_s);
        grid.raise(paste);
        QCOMPARE(form.log.take(),
                 QStringList({u"ImportRecordByPaste(ListID, A, false, , 1)"_s, u"GetGridData(A, true, 0)"_s}));
    }

    void dropGivesTheFocusBack() {
        BoundForm form;
        auto &grid = form.add<FakeGrid>(u"grdList"_s, u"A"_s);
        auto &text = form.addText(u"txtName"_s);
        form.bind();
        form.active = &text;
        grid.raise(FieldEvent(u"ImportRecordByDrop"_s, in(static_cast<Igrid *>(&grid)), in(u"A"_s),
                              in(static_cast<const QMimeData *>(nullptr))));
        QCOMPARE(form.log.take(), QStringList({u"ImportRecordByDrop(ListID, A, false, false, true)"_s,
                                               u"txtName.SetFocus()"_s, u"GetGridData(A, true, 0)"_s}));
    }
};

QTEST_GUILESS_MAIN(tst_Records)
#include "tst_records.moc"
