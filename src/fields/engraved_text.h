#pragma once

#include <QPalette>
#include <QRect>
#include <QString>

class QPainter;
class QWidget;

// A caption as all fields draw it: wrapped, with its access key underlined. While disabled it looks engraved: a copy in
// the highlight colour stands 15 twips right and below the text in the shadow colour.
struct CaptionText {
    QString text;
    int flags; // Qt::AlignmentFlag and Qt::TextFlag
    bool enabled;
};
void drawCaption(QPainter &painter, const QWidget &widget, const QRect &rect, const CaptionText &caption);
