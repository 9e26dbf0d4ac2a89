#include "form_sections.h"

#include <QSet>

#include <algorithm>

namespace {
constexpr auto kGrid = u"fldGridField";
// A column of a grid's Fields: format, UIID, width, type, locked.
constexpr qsizetype kPartsOfColumn = 5;
constexpr qsizetype kUiidOfColumn = 1;

QStringList columnsOf(const ControlDefinition &grid) {
    const QStringList parts = grid.property(QStringLiteral("Fields")).toString().split(u'|');
    QStringList columns;
    for (qsizetype place = kUiidOfColumn; place < parts.size(); place += kPartsOfColumn)
        columns << parts.at(place);
    return columns;
}

class Collector {
  public:
    Collector(const FormDefinition &form, const Dictionary &dictionary) : mForm(form), mDictionary(dictionary) {
        for (const PlacedControl &placed : form.placedControls()) {
            if (placed.control->typeName != kGrid)
                mOwn.insert(placed.control->id());
        }
    }

    [[nodiscard]] std::vector<FormSection> collect() {
        for (const PageDefinition &page : mForm.pages) {
            mPage = page.caption;
            addAll(page.controls, {});
        }
        mPage.clear();
        addAll(mForm.controls, {});
        std::erase_if(mSections,
                      [](const FormSection &section) { return section.fields.empty() && section.repeated.empty(); });
        return std::move(mSections);
    }

  private:
    void addAll(const std::vector<ControlDefinition> &controls, const QStringList &frames) {
        mSections.push_back({mPage, frames.join(QStringLiteral(" \u2013 ")), {}, {}});
        for (const ControlDefinition &control : controls) {
            if (control.typeName == kGrid)
                addGrid(control);
            else if (!control.controls.empty())
                addFrame(control, frames);
            else if (const FieldDefinition *field = mDictionary.find(control.id()))
                mSections.back().fields.push_back(field);
        }
    }

    // What follows a frame stands in a section of its own again.
    void addFrame(const ControlDefinition &frame, QStringList frames) {
        const QString heading = mSections.back().heading;
        if (const QString caption = frame.caption().trimmed(); !caption.isEmpty())
            frames << caption;
        addAll(frame.controls, frames);
        mSections.push_back({mPage, heading, {}, {}});
    }

    void addGrid(const ControlDefinition &grid) {
        for (const QString &uiid : columnsOf(grid)) {
            const FieldDefinition *field = mDictionary.find(uiid);
            if (field == nullptr)
                continue;
            FormSection &section = mSections.back();
            (mOwn.contains(uiid) ? section.repeated : section.fields).push_back(field);
        }
    }

    const FormDefinition &mForm;
    const Dictionary &mDictionary;
    QSet<QString> mOwn;
    QString mPage;
    std::vector<FormSection> mSections;
};
} // namespace

std::vector<FormSection> formSections(const FormDefinition &form, const Dictionary &dictionary) {
    return Collector(form, dictionary).collect();
}
