#include "grid_bench.h"

#include "tdb_grid.h"
#include "value_text.h"
#include "window_input.h"

#include <QApplication>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {
// Nothing is kept; pasted list items may be in another language.
ComponentPlaces placesOfTheBench() {
    ComponentPlaces places;
    places.translationFile = TranslationDictionary::StandardFile();
    return places;
}
} // namespace

void FormEvents::TransformerEvents_UpdateUIFieldByUIID(const QString &UIID, qint32 RecordNr, const QVariant &Value) {
    ComponentListener::TransformerEvents_UpdateUIFieldByUIID(UIID, RecordNr, Value);
    if (enabler != nullptr)
        enabler->Ienabler_UpdateUIFieldByUIID(UIID, RecordNr, Value);
}

void FormEvents::TransformerEvents_RefreshGridByUIID(const QString &UIID) {
    ComponentListener::TransformerEvents_RefreshGridByUIID(UIID);
    if (enabler != nullptr)
        enabler->Ienabler_RefreshGridByUIID(UIID);
}

void FormEvents::TransformerEvents_SetEnableDisableByUIID(const QString &UIID, bool Enable) {
    ComponentListener::TransformerEvents_SetEnableDisableByUIID(UIID, Enable);
    if (enabler != nullptr)
        enabler->Ienabler_SetEnableDisableByUIID(UIID, Enable);
}

GridBench::GridBench(Transformer *componentDouble)
    : component(placesOfTheBench(), [this] { return services.clipboard.Text(); }), mGuard(services.errors) {
    services.process.objTransformer = componentDouble == nullptr ? &component : componentDouble;
    services.shell.mainWindow = &window;
    component.AddListener(&events);
    component.ChangeTier(u"Advanced"_s);
    window.resize(800, 600);
}

GridBench::~GridBench() {
    for (const auto &host : mHosts)
        host->object()->Ifield_Terminate();
    if (events.enabler != nullptr)
        events.enabler->UserControl_Terminate();
    events.enabler.reset();
    window.enabler.reset();
    component.ShutDown();
}

void GridBench::enter(QWidget &field, const QString &name, const TwipRect &place) {
    const auto *control = dynamic_cast<Ifield *>(&field);
    const QString typeName =
        dynamic_cast<fldGridField *>(&field) != nullptr ? u"fldGridField"_s : control->Ifield_GetTypeName();
    auto host =
        std::make_unique<FieldHost>(field, FieldHost::Place{name, typeName, nullptr, qint32(window.controls.size())});
    host->SetGeometry(place);
    window.controls.push_back(host.get());
    mHosts.push_back(std::move(host));
}

fldGridField &GridBench::addGrid(const QString &fields, QVariantMap properties) {
    properties.insert(u"Fields"_s, fields);
    properties.insert(u"Dynamic"_s, true);
    if (!properties.contains(u"ID"_s))
        properties.insert(u"ID"_s, u"BenchGrid"_s);
    auto &grid = add<fldGridField>(u"grid%1"_s.arg(window.controls.size()),
                                   {{100}, {100 + qint32(window.controls.size()) * 600}, {9000}, {4000}}, properties);
    return grid;
}

HostControl *BenchForm::Iusrfrm_ActiveControl() {
    const auto found = std::ranges::find_if(controls, [](const HostControl *control) {
        return dynamic_cast<const FieldHost *>(control)->Widget()->isAncestorOf(QApplication::focusWidget());
    });
    return found == controls.end() ? nullptr : *found;
}

void GridBench::start(fldGridField &grid) {
    events.enabler = std::make_shared<ctlFormEnabler>(window.controls, services.fieldServices(),
                                                      [this] { return window.Iusrfrm_ActiveControl(); });
    window.enabler = events.enabler;
    events.enabler->AccessControls();
    services.shell.changingForms = true;
    events.enabler->Ienabler_InitialiseFields(-1);
    WindowInput::activate(window);
    services.shell.changingForms = false;
    grid.Ifield_SetFocus();
    events.clear();
}

TDBGrid &GridBench::table(fldGridField &grid) { return *grid.findChild<TDBGrid *>(u"TDBGrid1"_s); }

QString GridBench::shown(fldGridField &grid, qint32 row, qint32 column) { return grid.CellValue(row, column); }

QString GridBench::stored(const QString &uiid, qint32 record) const {
    return ValueText::of(const_cast<TransformerComponent &>(component).GetValue(uiid, record));
}
