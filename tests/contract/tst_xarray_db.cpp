#include "rows.h"
#include "run_time_error.h"
#include "xarray_db.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {
// Cells "row,column" of a shape.
XArrayDB filled(qint32 upperRow, qint32 upperColumn) {
    XArrayDB array;
    array.ReDim(upperRow, upperColumn);
    for (qint32 row = 0; row <= upperRow; ++row) {
        for (qint32 column = 0; column <= upperColumn; ++column)
            array.SetValue(row, column, u"%1,%2"_s.arg(row).arg(column));
    }
    return array;
}

QString cellsOf(const XArrayDB &array) {
    QStringList rows;
    for (qint32 row = 0; row <= array.UpperBound(1); ++row) {
        QStringList cells;
        for (qint32 column = 0; column <= array.UpperBound(2); ++column)
            cells << array.Value(row, column).toString();
        rows << cells.join(u' ');
    }
    return rows.join(u'/');
}
} // namespace

class tst_XArrayDB : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void anEmptyOneHasNoCells() {
        XArrayDB array;
        QCOMPARE(array.LowerBound(1), 0);
        QCOMPARE(array.UpperBound(1), -1);
        QCOMPARE(array.UpperBound(2), -1);
        array = filled(2, 1);
        array.Clear();
        QCOMPARE(array.LowerBound(2), 0);
        QCOMPARE(array.UpperBound(1), -1);
        QCOMPARE(array.UpperBound(2), -1);
    }

    void reDimKeepsTheCommonCells() {
        for (const auto &[upperRow, upperColumn, cells] : Rows<qint32, qint32, QString>{
                 {"same", 1, 1, u"0,0 0,1/1,0 1,1"_s},
                 {"more rows", 2, 1, u"0,0 0,1/1,0 1,1/ "_s},
                 {"fewer rows", 0, 1, u"0,0 0,1"_s},
                 {"more columns", 1, 2, u"0,0 0,1 /1,0 1,1 "_s},
                 {"fewer columns", 1, 0, u"0,0/1,0"_s},
                 {"wider and lower", 0, 2, u"0,0 0,1 "_s},
                 {"no rows", -1, 1, {}},
             }) {
            XArrayDB array = filled(1, 1);
            array.ReDim(upperRow, upperColumn);
            QCOMPARE(array.UpperBound(1), upperRow);
            QCOMPARE(array.UpperBound(2), upperColumn);
            QCOMPARE(cellsOf(array), cells);
        }
    }

    void outsideRaisesNine() {
        XArrayDB array = filled(1, 2);
        const auto numberOf = [](auto &&action) {
            try {
                action();
            } catch (const RunTimeError &error) {
                return error.Number;
            }
            return 0;
        };
        // The last one is a cell of the next row where rows stand behind each other.
        for (const auto &cell : {std::pair(-1, 0), std::pair(2, 0), std::pair(0, -1), std::pair(0, 3)}) {
            QCOMPARE(numberOf([&] { (void)array.Value(cell.first, cell.second); }), ErrorNumber::kIndexOutOfRange);
            QCOMPARE(numberOf([&] { array.SetValue(cell.first, cell.second, 1); }), ErrorNumber::kIndexOutOfRange);
        }
        QCOMPARE(numberOf([&] { array.DeleteRow(2); }), ErrorNumber::kIndexOutOfRange);
        QCOMPARE(numberOf([&] { array.InsertRow(3); }), ErrorNumber::kIndexOutOfRange);
        QCOMPARE(numberOf([&] { (void)array.UpperBound(3); }), ErrorNumber::kIndexOutOfRange);
        QCOMPARE(numberOf([&] { (void)array.LowerBound(0); }), ErrorNumber::kIndexOutOfRange);
        QCOMPARE(numberOf([&] { array.ReDim(-2, 0); }), ErrorNumber::kIndexOutOfRange);
        QCOMPARE(cellsOf(array), cellsOf(filled(1, 2)));
    }

    void rowsAreInsertedAndDeletedInPlace() {
        for (const auto &[insert, row, cells] : Rows<bool, qint32, QString>{
                 {"insert first", true, 0, u" /0,0 0,1/1,0 1,1"_s},
                 {"insert between", true, 1, u"0,0 0,1/ /1,0 1,1"_s},
                 {"insert behind the last", true, 2, u"0,0 0,1/1,0 1,1/ "_s},
                 {"delete first", false, 0, u"1,0 1,1"_s},
                 {"delete last", false, 1, u"0,0 0,1"_s},
             }) {
            XArrayDB array = filled(1, 1);
            if (insert)
                array.InsertRow(row);
            else
                array.DeleteRow(row);
            QCOMPARE(cellsOf(array), cells);
        }
    }
};

QTEST_GUILESS_MAIN(tst_XArrayDB)
#include "tst_xarray_db.moc"
