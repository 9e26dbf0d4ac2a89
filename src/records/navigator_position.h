#pragma once

#include <QtGlobal>

class NavigatorSlider;

// What a position asks of its navigator. The form may be closed inside the first three: then Gone() is true and nothing
// more is asked.
class PositionOwner {
  public:
    virtual ~PositionOwner() = default;
    [[nodiscard]] virtual bool HasStorage() const = 0;
    // The position wants to change. False: refused.
    [[nodiscard]] virtual bool AskPosition(qint32 position) = 0;
    // The position has changed.
    virtual void TellPosition(qint32 position) = 0;
    // Stores the position where none is stored yet.
    virtual void StoreIfNone(qint32 position) = 0;
    // Shows the record names with that one chosen; 0 or less: none.
    virtual void UpdateTheLocationTextbox(qint32 position) = 0;
    // The step buttons as they stand at a position.
    virtual void EnableSteps(qint32 position) = 0;
    // The selectors as they stand with the present number of records.
    virtual void SetActionkeysEnabledDisabled() = 0;
    [[nodiscard]] virtual bool Gone() const = 0;
};

// The position of a navigator: a record number from 1, 0 without records. It is the value of the slider, and of nothing
// else. A move is asked for before it counts and told afterwards; a refused one goes back to the last confirmed.
class NavigatorPosition {
  public:
    // Both outlive this. The slider's valueChanged must come back to sldSelector_Change.
    NavigatorPosition(NavigatorSlider &slider, PositionOwner &owner) : mSlider(slider), mOwner(owner) {}

    [[nodiscard]] qint32 NumberRecords() const { return mNumberRecords; }
    // A position above the new count becomes the count. The next change is asked for even if the position is the same.
    void NumberRecords(qint32 count);

    [[nodiscard]] qint32 Position() const;
    // The inner write: moves the slider and renews the names.
    void Position(qint32 position);
    // The write from outside: ignored while such a write is under way, so that what a move sets in motion cannot move
    // the navigator again.
    void MoveTo(qint32 position);
    // Moves and runs the change in any case.
    void ForcePositionChange(qint32 position);

    void First();
    void Back();
    void Forward();
    void Last();

    void sldSelector_Change();
    // The thumb is being dragged over a position.
    void sldSelector_Scroll(qint32 thumb);

  private:
    // The change procedure. False: refused, or there is nothing that stores the position.
    bool change();
    void goBack();

    NavigatorSlider &mSlider;
    PositionOwner &mOwner;
    qint32 mNumberRecords = 0;
    qint32 mConfirmed = -1; // the last position that was accepted; -1: none
    bool mMoving = false;
};
