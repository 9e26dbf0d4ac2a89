#pragma once

class QKeyEvent;

// A field as the focus guard sees it; filled by a widget. The focus enters and leaves the field as a whole: moves
// between its inner parts do not count.
class LeavableField {
  public:
    virtual ~LeavableField() = default;

    // Called before the focus leaves. False: the present value was refused, and the focus stays.
    [[nodiscard]] virtual bool MayLeave() = 0;
    // The focus has left: reports what still waited to be reported, then that the focus is lost.
    virtual void FocusHasLeft() = 0;
    // The focus has come.
    virtual void FocusHasCome() = 0;
    // Whether a mouse press on any part of the field brings the focus to it.
    [[nodiscard]] virtual bool TakesFocus() const = 0;
    // Gives the editing part the focus.
    virtual void FocusEditingPart() = 0;
    // Whether this Tab or Shift+Tab would leave the field; a grid uses some for its cells.
    [[nodiscard]] virtual bool TabLeaves(const QKeyEvent &key) const = 0;
};
