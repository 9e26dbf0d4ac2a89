#include "field_host.h"

#include "hosted_control.h"
#include "plain_caption.h"

#include <QGroupBox>
#include <QTabWidget>
#include <QWidget>

#include <utility>

namespace {
// How far to the left the controls of a page stand while another page is shown.
constexpr Twips kParkedBy{75000};
} // namespace

FieldHost::FieldHost(QWidget &widget, Place place)
    : mWidget(&widget), mControl(dynamic_cast<HostedControl *>(&widget)), mPlace(std::move(place)) {
    widget.setObjectName(mPlace.name);
}

void FieldHost::SetPage(const QTabWidget &tabs, int page) {
    mTabs = &tabs;
    mPage = page;
}

void FieldHost::SetGeometry(const TwipRect &geometry) {
    mGeometry = geometry;
    if (mWidget.isNull())
        return;
    if (HostedControl *hosted = control()) {
        const TwipSize taken = hosted->SetControlSize({geometry.width, geometry.height});
        mGeometry.width = taken.width;
        mGeometry.height = taken.height;
    }
    mWidget->setGeometry(TwipScale::of(*mWidget).toPixels(mGeometry));
}

Ifield *FieldHost::object() const { return control() == nullptr ? nullptr : control()->AsField(); }

QString FieldHost::Caption() const {
    const auto *const frame = qobject_cast<const QGroupBox *>(mWidget.data());
    return frame == nullptr ? QString() : plainCaption(frame->title());
}

qint32 FieldHost::Left() const { return (standsOnHiddenPage() ? mGeometry.left - kParkedBy : mGeometry.left).count; }

bool FieldHost::Enabled() const {
    if (const HostedControl *hosted = control())
        return hosted->ControlEnabled();
    return !mWidget.isNull() && mWidget->isEnabled();
}

bool FieldHost::Visible() const { return !mWidget.isNull() && !mWidget->isHidden(); }

void FieldHost::SetVisible(bool visible) {
    if (!mWidget.isNull())
        mWidget->setVisible(visible);
}

bool FieldHost::TabStop() const {
    if (const HostedControl *hosted = control())
        return hosted->TabStop();
    return !mWidget.isNull() && (mWidget->focusPolicy() & Qt::TabFocus) != 0;
}

void FieldHost::SetTabStop(bool tabStop) {
    if (HostedControl *hosted = control())
        hosted->SetTabStop(tabStop);
    else if (!mWidget.isNull() && mWidget->focusPolicy() != Qt::NoFocus)
        mWidget->setFocusPolicy(tabStop ? Qt::StrongFocus : Qt::ClickFocus);
}

void FieldHost::SetFocus() {
    if (HostedControl *hosted = control())
        hosted->FocusControl();
    else if (!mWidget.isNull())
        mWidget->setFocus(Qt::OtherFocusReason);
}

void FieldHost::SetListener(HostEvents *listener) {
    if (HostedControl *hosted = control())
        hosted->SetHostEvents(listener);
}

bool FieldHost::standsOnHiddenPage() const {
    if (!mTabs.isNull() && mTabs->currentIndex() != mPage)
        return true;
    return mPlace.container != nullptr && mPlace.container->standsOnHiddenPage();
}
