#pragma once

#include "igrid.h"
#include "unseen_field.h"

struct FieldServices;

// A grid that nobody sees: its columns and the rows that the enabler puts into its array.
class UnseenGrid final : public UnseenField, public Igrid {
  public:
    // services outlives the grid.
    UnseenGrid(const ControlDefinition &definition, HostControl *container, qint32 tabIndex,
               const FieldServices &services);

    void Igrid_SetColumnDisabled(const QString & /*UIID*/) override {}
    void Igrid_SetColumnEnabled(const QString & /*UIID*/) override {}
    void Igrid_AppendRow(const XArrayDB & /*NewRowArray*/) override {}
    void Igrid_InsertRow(const XArrayDB & /*NewRowArray*/, qint32 /*lngRowNumber*/) override {}
    QStringList Igrid_GetHeader() const override;
    XArrayDB &Igrid_GetArray() override { return mRows; }
    void Igrid_SetColumns() override;
    // What is stored in Combo columns becomes the items' texts.
    void Igrid_Rebind(bool Dynamic) override;
    QString Igrid_GetUIIDList() const override { return mUIIDs.join(u'|'); }
    QString Igrid_GetGridID() const override { return Ifield_GetUIID(); }
    void Igrid_SetValue(const QString & /*UIID*/, qint32 /*RecordNr*/, const QVariant & /*Value*/) override {}
    void Igrid_SetSelectedRow(qint32 /*lngRow*/) override {}
    void Igrid_RevertCurrentCell() override {}
    bool Igrid_Dynamic() const override { return mDynamic; }

  private:
    const FieldServices &mServices;
    bool mDynamic;
    QStringList mUIIDs;
    std::vector<qint32> mComboColumns;
    XArrayDB mRows;
};
