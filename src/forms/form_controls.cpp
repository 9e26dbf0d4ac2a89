#include "form_controls.h"

#include "control_registry.h"
#include "field_properties.h"
#include "fld_grid_field.h"
#include "form_definition.h"

#include <QTabWidget>

void FormControls::Build(const FormDefinition &definition, const FieldServices &services,
                         const ControlRegistry &registry, QWidget &form) {
    const QString file = definition.name + QStringLiteral(".json");
    for (const PlacedControl &placed : definition.placedControls()) {
        if (placed.control == &definition.tabControl)
            addTab(definition, placed, form);
        else
            addControl(file, placed, services, registry, form);
    }
    mByDefinition.clear();
    introduceGrids();
    chainFocus();
}

void FormControls::addTab(const FormDefinition &definition, const PlacedControl &placed, QWidget &form) {
    mTabWidget = new QTabWidget(&form);
    QStringList captions;
    for (const PageDefinition &page : definition.pages) {
        captions.push_back(page.caption);
        mTabWidget->addTab(new QWidget(mTabWidget), page.caption);
    }
    FieldHost::Place place{placed.control->name, placed.control->typeName, nullptr, placed.tabIndex};
    auto host = std::make_unique<TabHost>(*mTabWidget, std::move(place), std::move(captions));
    mTab = host.get();
    enter(std::move(host), *placed.control);
}

void FormControls::addControl(const QString &file, const PlacedControl &placed, const FieldServices &services,
                              const ControlRegistry &registry, QWidget &form) {
    const ControlDefinition &control = *placed.control;
    const FieldProperties properties{file, control.name, control.properties};
    QWidget *widget = registry.Make(control.typeName, services, properties, &parentOf(placed, form));
    FieldHost *container = placed.parent == nullptr ? nullptr : mByDefinition.at(placed.parent);
    FieldHost::Place place{control.name, control.typeName, container, placed.tabIndex};
    auto host = std::make_unique<FieldHost>(*widget, std::move(place));
    if (container != nullptr && container == mTab)
        host->SetPage(*mTabWidget, placed.page);
    enter(std::move(host), control);
}

void FormControls::enter(std::unique_ptr<FieldHost> host, const ControlDefinition &definition) {
    mByDefinition.emplace(&definition, host.get());
    mByWidget.emplace(host->Widget(), host.get());
    mAll.push_back(host.get());
    mHosts.push_back(std::move(host));
}

QWidget &FormControls::parentOf(const PlacedControl &placed, QWidget &form) const {
    if (placed.parent == nullptr)
        return form;
    FieldHost *container = mByDefinition.at(placed.parent);
    QWidget *parent = container == mTab ? mTabWidget->widget(placed.page) : container->Widget();
    Q_ASSERT(parent != nullptr);
    return *parent;
}

HostControl *FormControls::ControlOf(const QWidget *widget) const {
    for (; widget != nullptr; widget = widget->parentWidget()) {
        if (const auto found = mByWidget.find(widget); found != mByWidget.end())
            return found->second;
    }
    return nullptr;
}

void FormControls::HideEmptyPages() {
    if (mTabWidget == nullptr)
        return;
    for (int page = 0; page < mTabWidget->count(); ++page) {
        bool used = false;
        for (const std::unique_ptr<FieldHost> &host : mHosts)
            used = used || (host->Widget()->parentWidget() == mTabWidget->widget(page) && host->Visible());
        mTabWidget->setTabVisible(page, used);
    }
}

void FormControls::introduceGrids() const {
    for (const std::unique_ptr<FieldHost> &host : mHosts) {
        if (auto *grid = qobject_cast<fldGridField *>(host->Widget()))
            grid->SetFormControls(mAll);
    }
}

// Qt's chain follows the order in which widgets were made, which is the tab order but for the parts that a control
// makes later. Setting it keeps both alike.
void FormControls::chainFocus() const {
    QWidget *last = nullptr;
    for (const std::unique_ptr<FieldHost> &host : mHosts) {
        QList<QWidget *> parts{host->Widget()};
        parts += host->Widget()->findChildren<QWidget *>();
        for (QWidget *part : parts) {
            const bool inWindow = part->window() == host->Widget()->window(); // not in a popup
            if (part->focusPolicy() == Qt::NoFocus || !inWindow || ControlOf(part) != host.get())
                continue;
            if (last != nullptr)
                QWidget::setTabOrder(last, part);
            last = part;
        }
    }
}
