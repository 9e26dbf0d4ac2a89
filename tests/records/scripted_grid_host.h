#pragma once

#include "host_control.h"
#include "xarray_db.h"

#include <QHash>
#include <QStringList>

#include <functional>

// Answers a grid's questions in the enabler's place: lists by UIID, labels, verdicts.
class ScriptedGridHost final : public HostEvents {
  public:
    std::function<void(const QString &event)> on; // runs inside each event
    QHash<QString, QStringList> lists;            // of Combo and ID Tracker columns
    QHash<QString, QString> labels;               // a UIID without an entry is its own label
    qint32 scope = 0;                             // of all Combo lists; 2: differs by record
    bool refuses = false;                         // each "ManualValidate"
    QStringList heard;                            // "Name" or "Name UIID record"

    [[nodiscard]] QStringList heardOf(const QString &event) const { return heard.filter(event); }

    void frmField_GotFocus() override {}
    void frmField_LostFocus() override {}
    void frmField_Validate(bool & /*Cancel*/) override {}
    void frmField_ObjectEvent(const FieldEvent &Event) override {
        const QString &name = Event.name();
        if (on)
            on(name);
        if (name == QStringLiteral("GetComboItems") || name == QStringLiteral("GetIDItems")) {
            const auto [uiid, record] = Event.unpack<QString, qint32>();
            heard << QStringLiteral("%1 %2 %3").arg(name, uiid).arg(record);
            fillList(Event);
            if (name == QStringLiteral("GetComboItems"))
                Event.parameter<qint32 &>(3) = scope;
            return;
        }
        heard << name;
        if (name == QStringLiteral("GetLabel"))
            Event.parameter<QString &>(1) = labels.value(Event.parameter<QString>(0), Event.parameter<QString>(0));
        if (name == QStringLiteral("ManualValidate"))
            Event.parameter<bool &>(0) = refuses;
    }

  private:
    void fillList(const FieldEvent &event) const {
        const QStringList items = lists.value(event.parameter<QString>(0));
        auto &array = event.parameter<XArrayDB &>(2);
        array.Clear();
        array.ReDim(qint32(items.size()) - 1, 0);
        for (qint32 row = 0; row < qint32(items.size()); ++row)
            array.SetValue(row, 0, items[row]);
    }
};
