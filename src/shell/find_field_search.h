#pragma once

#include "host_control.h"
#include "window_services.h"

#include <QString>
#include <QStringList>

#include <optional>

class FormFactoryInterface;
class FormNodes;
class Iusrfrm;
class QWidget;

// One line of what was found: "<form> - <label>", a tab, and the field's control name or, in a grid, its UIID.
struct FindFieldHit {
    QString form; // tree text
    QString label;
    QString name;
    int nth = 0; // from 0, among equal lines: a field and a column of a grid may be the same setting

    [[nodiscard]] QString Line() const;
    // Nothing for "Not Found". The form ends at the first " - ".
    [[nodiscard]] static std::optional<FindFieldHit> FromLine(const QString &line);
};

// Finds fields by a part of their control name or label, in any case. There is no index: each form of the tree is built
// for a moment, without filling its fields. What a sub-form has is found under the form that calls it up.
class FindFieldSearch {
  public:
    // window: the forms' parent for that moment. All outlive it.
    FindFieldSearch(const FieldServices &services, FormFactoryInterface &factory, const FormNodes &nodes,
                    QWidget &window);

    // The lines; "Not Found" alone where no form has such a field. An empty text finds every field.
    [[nodiscard]] QStringList Find(const QString &text) const;

  private:
    void CheckForm(const QString &key, const FindFieldHit &pattern, QStringList &lines) const;
    void checkControls(Iusrfrm &form, const FindFieldHit &pattern, QStringList &lines) const;
    void setLabel(Iusrfrm &form, const HostControl &control) const;

    FieldServices mServices;
    FormFactoryInterface &mFactory;
    const FormNodes &mNodes;
    QWidget &mWindow;
};
