#pragma once

#include "grid_bench.h"
#include "tdb_grid.h"
#include "window_input.h"

#include <QCoreApplication>
#include <QPushButton>
#include <QTest>

inline constexpr qint32 kRx = 1;
inline constexpr qint32 kPower = 5;
inline const auto kRxFreq = QStringLiteral("RxFreq_q7r");

[[nodiscard]] inline QString megahertz(int channel) { return QStringLiteral("%1.000000").arg(140 + channel); }

// The channels form's grid over the real component, with a number of channels: channel n receives on 140 + n MHz.
class ChannelBench : public GridBench {
  public:
    explicit ChannelBench(int channels, const QStringList &dictionary = {}) : grid(addGrid(channelColumns())) {
        if (!dictionary.isEmpty())
            services.translate(dictionary);
        while (component.GetNumberOfRecords(kRxFreq) < channels) {
            qint32 record = 0;
            bool added = false;
            component.AddRecord(kRxFreq, QStringLiteral("BenchGrid"), record, added);
        }
        for (int channel = 1; channel <= channels; ++channel)
            write(kRxFreq, megahertz(channel), channel);
        start(grid);
    }

    fldGridField &grid;
    fldGridField &other = add<fldGridField>(QStringLiteral("gridBelow"), {{100}, {4300}, {9000}, {4000}},
                                            {{QStringLiteral("ID"), QStringLiteral("OtherGrid")},
                                             {QStringLiteral("Fields"), channelColumns()},
                                             {QStringLiteral("Dynamic"), true}});

    TDBGrid &table() { return GridBench::table(grid); }
    void write(const QString &uiid, const QVariant &value, qint32 record) {
        bool accepted = false;
        component.SetValue(uiid, value, record, true, accepted);
        QVERIFY2(accepted, qPrintable(uiid));
    }
    void select(qint32 first, qint32 last) {
        table().RemoveSelBookmarks();
        for (qint32 row = first; row <= last; ++row)
            table().AddSelBookmark(row);
    }
    // What the component has, by record.
    QStringList frequencies() const {
        auto &data = const_cast<TransformerComponent &>(component);
        QStringList values;
        for (qint32 record = 1; record <= data.GetNumberOfRecords(kRxFreq); ++record)
            values << stored(kRxFreq, record);
        return values;
    }
    QStringList shownRows() {
        QStringList rows;
        for (qint32 row = 0; row < table().ApproxCount(); ++row) {
            QStringList cells;
            for (qint32 column = 0; column < table().model()->columnCount(); ++column)
                cells << shown(grid, row, column);
            rows << cells.join(u'|');
        }
        return rows;
    }
    // Whether the grid shows what a fresh fill would show, also after what the component still had to say.
    bool showsItsData() {
        const QStringList now = shownRows();
        QCoreApplication::processEvents();
        const QStringList settled = shownRows();
        events.enabler->Ienabler_RefreshGridByUIID(kRxFreq);
        return now == shownRows() && settled == now;
    }
    void press(const char *button) { WindowInput::click(*grid.findChild<QPushButton *>(QString::fromLatin1(button))); }
};

[[nodiscard]] inline QStringList channels(const QList<int> &numbers) {
    QStringList values;
    for (const int number : numbers)
        values << megahertz(number);
    return values;
}
