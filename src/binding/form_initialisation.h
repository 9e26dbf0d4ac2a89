#pragma once

#include "cls_control_item.h"
#include "enabler_part.h"

class FieldInitialisation;
class FrameContents;

// Fills a whole form: fields, navigator positions, page captions, and which frames show.
class FormInitialisation : private EnablerPart {
  public:
    FormInitialisation(FormItems &items, const FieldServices &services, FieldInitialisation &fields,
                       FrameContents &frames);

    void Ienabler_InitialiseFields(qint32 lngRecordNr);

  private:
    void positionNavigators(qint32 recordNr);
    void restorePosition(const ControlItemPtr &item);
    void translatePageCaptions();
    void showFilledFrames();

    FieldInitialisation &mFields;
    FrameContents &mFrames;
};
