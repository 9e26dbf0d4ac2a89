#pragma once

#include <QTest>

#include <cstddef>
#include <initializer_list>
#include <tuple>
#include <utility>
#include <vector>

// A table of cases that a test goes through: a row has a title, which a failure tells, and then its cells.
//     for (const auto &[text, length] : Rows<QString, int>{{"nothing", {}, 0}, {"a letter", u"a"_s, 1}})
template <class... Cells>
class Rows {
  public:
    struct Row {
        Row(const char *rowTitle, Cells... rowCells) : title(rowTitle), cells(std::move(rowCells)...) {}
        const char *title;
        std::tuple<Cells...> cells;
    };
    class Iterator {
      public:
        Iterator(Rows &rows, std::size_t at) : mRows(&rows), mAt(at) {}
        const std::tuple<Cells...> &operator*() const { return mRows->go(mAt); }
        Iterator &operator++() {
            mRows->tellFailure();
            ++mAt;
            return *this;
        }
        bool operator!=(const Iterator &other) const { return mAt != other.mAt; }

      private:
        Rows *mRows;
        std::size_t mAt;
    };

    Rows(std::initializer_list<Row> rows) : mRows(rows) {}
    Rows(const Rows &) = delete;
    Rows &operator=(const Rows &) = delete;
    ~Rows() { tellFailure(); }

    Iterator begin() { return {*this, 0}; }
    Iterator end() { return {*this, mRows.size()}; }

  private:
    const std::tuple<Cells...> &go(std::size_t at) {
        mAt = at;
        return mRows[at].cells;
    }
    void tellFailure() {
        if (!mTold && QTest::currentTestFailed())
            qWarning("failed in the row \"%s\"", mRows[mAt].title);
        mTold = mTold || QTest::currentTestFailed();
    }

    std::vector<Row> mRows;
    std::size_t mAt = 0;
    bool mTold = QTest::currentTestFailed();
};
