#pragma once

#include "labelled_field.h"
#include "type_ahead.h"

class ComboList;
struct FieldProperties;

// What the two kinds of drop-down list share: a choice with the mouse is reported at once ("Click"), one with the keys
// when the focus leaves. A value set by code is not reported; paste, drop and type-ahead count as choices.
class ListField : public LabelledField {
    Q_OBJECT
  public:
    // The chosen position from 0; -1 for none.
    [[nodiscard]] qint32 ListIndex() const;
    [[nodiscard]] QString Text() const;
    [[nodiscard]] qint32 ListCount() const;
    // The text at a position from 0; "" outside the list.
    [[nodiscard]] QString List(qint32 index) const;
    // First item exactly equal to the text, or -1.
    [[nodiscard]] qint32 FindValueIndex(const QString &text) const;

    // The list's text; cutting leaves the choice.
    void Ifield_Copy() override;
    void Ifield_Cut() override { Ifield_Copy(); }
    void Ifield_Paste() override;
    // Copy and paste, never cut.
    qint32 Ifield_GetEditOperations() override { return 6; }
    void Ifield_SetEnabled() override;
    void Ifield_SetDisabled() override;
    void Ifield_SetInvisible() override;
    bool Ifield_GetEnabled() const override { return ControlEnabled(); }

  protected:
    ListField(const FieldServices &services, QWidget *parent);

    // "Caption", "ID", "NavigatorStream", "LabelWidthFactor", "List0", "Enabled".
    void readList(PropertyReader &reader);
    [[nodiscard]] ComboList &list() const { return *mCombo; }
    // While true, keys and choices go unnoticed.
    [[nodiscard]] virtual bool ignoresChoices() const { return false; }

    [[nodiscard]] QWidget *editingPart() const override;
    void reportPendingChoice() override;
    void applyColours() override;
    bool eventFilter(QObject *watched, QEvent *event) override;

    // The text of the choice, not its value.
    [[nodiscard]] QString DragText() override;
    [[nodiscard]] bool AcceptsDrag(const QString &text) const override;
    void TakeDrop(const QString &text) override;

  private:
    void Combo1_Click();
    bool Combo1_KeyPress(QKeyEvent &key, bool listIsOpen);
    bool typeAhead(const QKeyEvent &key);
    void choose(qint32 index);
    void setFace(BoxFace face);

    ComboList *mCombo; // owned by this widget
    TypeAhead mTypeAhead;
    BoxFace mFace = BoxFace::kWindow;
    bool mKeyMoved = false;      // a key went down: the next choice comes from the keyboard
    bool mPendingChoice = false; // a choice by keyboard waits to be reported
};
