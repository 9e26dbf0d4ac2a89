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
    void frmField_ObjectEvent(const FieldEvent &Event) override;

  private:
    void fillList(const FieldEvent &event) const;
};
