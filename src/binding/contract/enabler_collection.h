#pragma once

#include "ienabler.h"

#include <QString>

#include <memory>
#include <utility>
#include <vector>

// colEnablers: the enablers of the open form ("Main") and of a sub-form ("Sub"), in the order of their entry.
class Q_DECL_EXPORT EnablerCollection {
  public:
    // A key that is already there gets the new enabler.
    void Add(const std::shared_ptr<Ienabler> &enabler, const QString &key);
    // Nothing if the key is not there.
    void Remove(const QString &key);
    // Null if the key is not there.
    [[nodiscard]] std::shared_ptr<Ienabler> Item(const QString &key) const;
    [[nodiscard]] qint32 Count() const { return qint32(mItems.size()); }
    // A copy to walk over, since an event may close a form.
    [[nodiscard]] std::vector<std::shared_ptr<Ienabler>> All() const;

  private:
    std::vector<std::pair<QString, std::shared_ptr<Ienabler>>> mItems;
};
