#include "figure_groups.h"

#include "bench_component.h"
#include "component_state.h"
#include "dictionary_loader.h"
#include "final_checks.h"
#include "form_catalogue.h"
#include "full_data.h"
#include "run_time_error.h"
#include "xarray_db.h"

#include <QFileInfo>

using Timing::atMost;

namespace {
constexpr int kRuns = 9;

// Reads every field of every record; answers with how many values that were.
qint64 sweep(TransformerComponent &transformer) {
    const TierData &data = transformer.state().current();
    qint64 values = 0;
    for (const RecordStructure &structure : transformer.dictionary().structures()) {
        const qint32 parents = structure.isScoped() ? data.totalRecordCount(structure.parent) : 1;
        for (qint32 parent = 1; parent <= parents; ++parent) {
            bool ok = false;
            if (structure.isScoped())
                transformer.SetValue(transformer.dictionary().structure(structure.parent).position, parent, 1, true,
                                     ok);
            const qint32 records = data.recordCount(structure.index, structure.isScoped() ? parent : 0);
            for (const FieldIndex field : structure.fields) {
                const QString &uiid = transformer.dictionary().field(field).id;
                for (qint32 record = 1; record <= records; ++record)
                    values += transformer.GetValue(uiid, record).isValid() ? 1 : 0;
            }
        }
    }
    return values;
}

// UIIDs of the columns of a grid as its form defines them.
QString columnsOf(const QString &form, const QString &gridId) {
    constexpr int kPartsPerColumn = 5;
    constexpr int kUiidPart = 1;
    FormCatalogue catalogue;
    for (const PlacedControl &placed : catalogue.form(form).placedControls()) {
        if (placed.control->id() != gridId)
            continue;
        const QStringList parts = placed.control->property(QStringLiteral("Fields")).toString().split(u'|');
        QStringList uiids;
        for (qsizetype at = kUiidPart; at < parts.size(); at += kPartsPerColumn)
            uiids.append(parts[at]);
        return uiids.join(u'|');
    }
    throw RunTimeError(ErrorNumber::kBadArgument, gridId, QStringLiteral("no such grid"));
}

void requireDone(bool ok, const char *what) {
    if (!ok)
        throw RunTimeError(ErrorNumber::kBadArgument, QString::fromLatin1(what), QStringLiteral("refused"));
}
} // namespace

void FigureGroups::component(Figures &figures) {
    const QString ms = QStringLiteral("ms");
    figures.add(QStringLiteral("dictionary load"),
                figures.median(kRuns, [] { (void)DictionaryLoader::loadCompiledIn(); }), ms);
    BenchComponent bench;
    TransformerComponent &transformer = bench.transformer;
    const Dictionary &dictionary = transformer.dictionary();
    figures.add(QStringLiteral("new data set, all tiers"),
                figures.median(kRuns, [&] { const DataSet fresh(dictionary); }), ms);

    transformer.ChangeTier(QStringLiteral("Advanced"));
    FullData(transformer).fill();
    qint64 values = 0;
    const double sweepTime = figures.median(kRuns, [&] { values = sweep(transformer); });
    figures.add(QStringLiteral("GetValue sweep of %1 values, per value").arg(values), sweepTime * 1000 / double(values),
                QStringLiteral("us"), atMost(0.5));

    const QString file = bench.folder.filePath(QStringLiteral("full.k4p"));
    bool ok = false;
    figures.add(QStringLiteral("save of a full Advanced file"),
                figures.median(kRuns, [&] { transformer.SaveFile(file, QString(), 0, ok); }), ms, atMost(80));
    requireDone(ok, "SaveFile");
    figures.add(QStringLiteral("size of the file"), double(QFileInfo(file).size()) / 1024, QStringLiteral("KiB"));
    BenchComponent reader;
    figures.add(QStringLiteral("load of it"),
                figures.median(kRuns, [&] { reader.transformer.ReadFile(file, 0, 0, false); }), ms, atMost(80));
    requireDone(reader.transformer.GetFileName() == file, "ReadFile");
    figures.add(QStringLiteral("check of it"),
                figures.median(kRuns, [&] { (void)FinalChecks(reader.transformer.state().current()).run(); }), ms);

    const QString columns = columnsOf(QStringLiteral("usrctlChannelsKX4600"), QStringLiteral("Channels9000"));
    XArrayDB rows;
    figures.add(QStringLiteral("refill of 2,000 rows, %1 columns").arg(columns.count(u'|') + 1),
                figures.median(kRuns, [&] { transformer.GetGridData(columns, true, rows, 0, ok); }), ms, atMost(16));
    requireDone(ok && rows.UpperBound(1) == 1999, "GetGridData");
    qint32 turn = 0;
    figures.add(QStringLiteral("one cell edit"),
                figures.median(kRuns * 10,
                               [&] {
                                   const QString value = QString::number(150 + ++turn % 2);
                                   transformer.SetValue(QStringLiteral("RxFreq_q7r"), value, 1000, true, ok);
                               }),
                ms, atMost(16));
    requireDone(ok, "SetValue");
    figures.add(QStringLiteral("column sort"),
                figures.median(kRuns, [&] { transformer.SortColumn(QStringLiteral("RxFreq_q7r"), ++turn % 2 == 0); }),
                ms, atMost(16));
}
