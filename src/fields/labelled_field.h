#pragma once

#include "box_face.h"
#include "editable_field.h"
#include "field_drag.h"
#include "label_layout.h"

class FieldLabel;

// A field made of a caption and one editing part behind it: their layout, the caption's states, and the drag of the
// value by the caption.
class LabelledField : public EditableField, protected DragParty {
    Q_OBJECT
  public:
    [[nodiscard]] double LabelWidthFactor() const { return mLabelWidthFactor; }

    QVariant Ifield_SetName(const QString &Name) override;
    QString Ifield_GetName() const override;
    void Ifield_UIIDNotFound() override;
    TwipSize SetControlSize(const TwipSize &size) override;

  protected:
    LabelledField(const FieldServices &services, QWidget *parent, const TwipSize &definitionSize);

    // "Caption", "ID", "NavigatorStream", "LabelWidthFactor" (0 to 1; what lies outside becomes the nearer end).
    void readLabel(PropertyReader &reader, const QString &defaultCaption, double defaultFactor = 0.6);
    // Called once by the concrete class: makes editor the caption's buddy and a target of drags.
    void addEditor(QWidget &editor, QWidget &dropSurface);
    void layOut();

    enum class LabelState { kEnabled, kDisabled, kHidden };
    void setLabelState(LabelState state);
    // What an unknown UIID shows.
    virtual void showNothing() = 0;
    // Places the editing parts; returns the height of the control.
    virtual Twips placeEditors(const LabelLayout::Parts &parts, Twips givenHeight);
    void place(QWidget &part, const TwipRect &rect);

    [[nodiscard]] bool MayDrag() const override { return ControlEnabled(); }
    [[nodiscard]] QString DragId() const override { return Ifield_GetUIID(); }
    [[nodiscard]] QString DragTypeName() const override { return Ifield_GetTypeName(); }

  private:
    void showCaption(const QString &caption);

    FieldLabel *mLabel; // owned by this widget
    FieldDrag mDrag;
    double mLabelWidthFactor = 0.6;
    TwipSize mSize;
};
