#pragma once

#include "dictionary.h"

#include <QHash>
#include <QString>
#include <QStringList>

// The hand-written texts: fragments of HTML below one folder. In them "[[TxPower_q7r]]" stands for a link to that
// field's place with its label, "[[usrctlPTT]]" for one to a form's page with its title, so that neither goes stale.
class HandWritten {
  public:
    // titles: those of all forms by class name. The dictionary outlives it.
    HandWritten(QString folder, const Dictionary &dictionary, QHash<QString, QString> titles);

    // The names in contents.txt, in their order, without ".html".
    [[nodiscard]] QStringList pages() const;
    // Both raise a RunTimeError for a missing file and for a name that nothing bears.
    [[nodiscard]] QString page(const QString &name) const;
    [[nodiscard]] QString introduction(const QString &form) const;
    [[nodiscard]] QString path(const QString &file) const { return mFolder + u'/' + file; }

  private:
    [[nodiscard]] QString read(const QString &file) const;
    [[nodiscard]] QString linkTo(const QString &name, const QString &file) const;

    QString mFolder;
    const Dictionary &mDictionary;
    QHash<QString, QString> mTitles;
};
