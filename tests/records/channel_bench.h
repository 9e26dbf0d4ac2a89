#pragma once

#include "grid_bench.h"
#include "tdb_grid.h"
#include "window_input.h"

#include <QCoreApplication>
#include <QPushButton>
#include <QSet>
#include <QTest>

inline constexpr qint32 kRx = 1;
inline constexpr qint32 kPower = 5;
inline const auto kRxFreq = QStringLiteral("RxFreq_q7r");

[[nodiscard]] inline QString megahertz(int channel) { return QStringLiteral("%1.000000").arg(140 + channel); }

// The channels form's grid over the real component, with a number of channels: channel n receives on 140 + n MHz.
class ChannelBench : public GridBench {
  public:
    explicit ChannelBench(int channels, qint32 language = 1) : grid(addGrid(channelColumns())) {
        services.translation.Dictionary().Load(TranslationDictionary::StandardFile());
        services.translation.gLanguage = language;
        component.SaveSetting(QStringLiteral("Language"), language);
        while (component.GetNumberOfRecords(kRxFreq) < channels) {
            qint32 record = 0;
            bool added = false;
            component.AddRecord(kRxFreq, QStringLiteral("BenchGrid"), record, added);
        }
        for (int channel = 1; channel <= channels; ++channel) {
            write(kRxFreq, megahertz(channel), channel);
            write(QStringLiteral("TxPower_q7r"), channel % 2, channel);
        }
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
    // What the component has of a field, by record.
    QStringList values(const QString &uiid) {
        QStringList values;
        for (qint32 record = 1; record <= component.GetNumberOfRecords(uiid); ++record)
            values << stored(uiid, record);
        return values;
    }
    QStringList frequencies() { return values(kRxFreq); }
    // All that the component has of each record, but for its identity.
    QStringList records() {
        QStringList records;
        const QStringList uiids = grid.Igrid_GetUIIDList().split(u'|');
        for (qint32 record = 1; record <= component.GetNumberOfRecords(kRxFreq); ++record) {
            QStringList cells;
            for (const QString &uiid : uiids.mid(1))
                cells << stored(uiid, record);
            records << cells.join(u'|');
        }
        return records;
    }
    bool identitiesAreUnique() {
        const QStringList all = values(QStringLiteral("ChannelID_q7r"));
        return QSet<QString>(all.begin(), all.end()).size() == all.size();
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
    // Whether the grid shows what a fresh fill would show, also after what the component still had to say, and no
    // identity stands twice.
    bool showsItsData() {
        const QStringList now = shownRows();
        QCoreApplication::processEvents();
        const QStringList settled = shownRows();
        events.enabler->Ienabler_RefreshGridByUIID(kRxFreq);
        return now == shownRows() && settled == now && identitiesAreUnique();
    }
    void press(const char *button) { WindowInput::click(*grid.findChild<QPushButton *>(QString::fromLatin1(button))); }
};

[[nodiscard]] inline QStringList channels(const QList<int> &numbers) {
    QStringList values;
    for (const int number : numbers)
        values << megahertz(number);
    return values;
}
