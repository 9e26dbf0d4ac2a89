#include "navigator_bench.h"

#include "combo_list.h"
#include "field_bench.h"
#include "navigator_slider.h"

#include <QPushButton>

#include <utility>

using namespace Qt::StringLiterals;

namespace {
const QString kGuide = u"Name"_s;

QVariantMap withDefaults(const QVariantMap &properties) {
    QVariantMap all{{u"NavigatorStream"_s, 3},
                    {u"GuideUIID"_s, kGuide},
                    {u"PositionStorageUIID"_s, u"Stored"_s},
                    {u"GridID"_s, u"Grid"_s},
                    {u"SliderStyle"_s, 2}};
    all.insert(properties);
    return all;
}
} // namespace

void NavigatorListener::frmField_ObjectEvent(const FieldEvent &Event) {
    QString line = Event.name();
    if (line == u"ChangePositionStorage") {
        const auto [uiid, position, accepted] = Event.unpack<QString, qint32, bool &>();
        accepted = acceptsPosition;
        line += u" %1 %2"_s.arg(uiid).arg(position);
    } else if (line == u"ChangedPosition") {
        const auto [uiid, stream, position] = Event.unpack<QString, qint32, qint32>();
        line += u" %1 %2 %3"_s.arg(uiid).arg(stream).arg(position);
    } else if (line == u"ValidateForm") {
        Event.parameter<bool &>(0) = formIsValid;
    } else if (line == u"DeleteRecordNavigator") {
        Event.parameter<bool &>(1) = true;
    }
    heard << line;
    if (on)
        on(Event.name());
}

NavigatorBench::NavigatorBench(const QVariantMap &properties, QWidget *parent) {
    component.when(u"GetValue"_s, u"Stored"_s).answers(1);
    navigator = std::make_unique<fldPageNavigator>(
        services.fieldServices(), FieldProperties{u"bench.json"_s, u"navigator"_s, withDefaults(properties)},
        parent == nullptr ? &window : parent);
    navigator->SetHostEvents(&listener);
    navigator->SetControlSize({{9225}, {0}});
    window.resize(700, 200);
}

void NavigatorBench::setRecords(qint32 count) {
    component.when(u"GetNumberOfRecords"_s, kGuide).answers(count);
    for (qint32 record = 1; record <= count; ++record)
        component.when(u"GetValue"_s, kGuide, record).answers(u"Alpha%1"_s.arg(record));
    navigator->Inavigator_NumberRecords(count);
}

void NavigatorBench::open(qint32 count, qint32 position) {
    setRecords(count);
    navigator->Inavigator_Position(position);
    takeHeard();
}

QStringList NavigatorBench::takeHeard() { return std::exchange(listener.heard, {}); }

NavigatorSlider &NavigatorBench::slider() const { return FieldBench::part<NavigatorSlider>(*navigator, "sldSelector"); }

ComboList &NavigatorBench::list() const { return FieldBench::part<ComboList>(*navigator, "cboSelector"); }

QPushButton &NavigatorBench::button(const char *name) const { return FieldBench::part<QPushButton>(*navigator, name); }
