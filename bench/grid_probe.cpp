#include "common_error_handler.h"
#include "data_form.h"
#include "fld_grid_field.h"
#include "frm_main.h"
#include "main_application.h"
#include "main_program.h"
#include "tdb_grid.h"
#include "transformer.h"
#include "window_input.h"
#include "yes_boxes.h"

#include <QElapsedTimer>
#include <QHeaderView>
#include <QPushButton>

#include <algorithm>
#include <cstdio>
#include <functional>
#include <vector>

namespace {
constexpr qint32 kRx = 1;
constexpr qint32 kDeleted = 500;

// The channels form of the whole program, its grid with the focus.
class ChannelGrid {
  public:
    explicit ChannelGrid(frmMain &window) : mWindow(window), mGrid(part<fldGridField>("fldChannelsKX4600")) {
        WindowInput::activate(window);
        mGrid.Ifield_SetFocus();
    }

    template <class Part>
    [[nodiscard]] Part &part(const char *name) const {
        auto *found = mWindow.findChild<Part *>(QLatin1String(name));
        if (found == nullptr)
            qFatal("the channels form has no %s", name);
        return *found;
    }
    [[nodiscard]] fldGridField &grid() const { return mGrid; }
    [[nodiscard]] TDBGrid &table() const { return part<TDBGrid>("TDBGrid1"); }
    void click(const char *button) const { WindowInput::click(part<QPushButton>(button)); }
    void select(qint32 first, qint32 count) const {
        table().RemoveSelBookmarks();
        for (qint32 row = first; row < first + count; ++row)
            table().AddSelBookmark(row);
    }

    // Says the median time of a number of runs, each until the window has been painted again.
    void measure(const char *name, int runs, const std::function<void(int run)> &work) const {
        std::vector<double> times;
        for (int run = 0; run < runs; ++run) {
            QElapsedTimer timer;
            timer.start();
            work(run);
            QCoreApplication::processEvents();
            mWindow.repaint();
            times.push_back(double(timer.nsecsElapsed()) / 1e6);
        }
        std::ranges::nth_element(times, times.begin() + runs / 2);
        std::printf("%s\t%.3f\n", name, times[std::size_t(runs / 2)]);
        std::fflush(stdout);
    }

  private:
    frmMain &mWindow;
    fldGridField &mGrid;
};

void measureAll(const ChannelGrid &form) {
    constexpr int kRuns = 21;
    form.table().MoveTo({0, kRx});
    form.measure("a row down", kRuns, [](int) { WindowInput::key(Qt::Key_Down); });
    form.measure("a page down", kRuns, [](int) { WindowInput::key(Qt::Key_PageDown); });
    form.measure("a move by the navigator", kRuns, [&](int) { form.click("cmdForward"); });
    form.measure("to the last row and back", kRuns,
                 [](int run) { WindowInput::key(run % 2 == 0 ? Qt::Key_End : Qt::Key_Home, Qt::ControlModifier); });
    form.table().MoveTo({0, kRx});
    form.measure("a cell edit", kRuns, [](int) {
        WindowInput::type(QStringLiteral("155.5"));
        WindowInput::key(Qt::Key_Return);
    });
    form.measure("a column sort", 5,
                 [&](int run) { Q_EMIT form.table().horizontalHeader()->sectionClicked(run % 2 == 0 ? kRx : 0); });
    form.measure("fill down 500 rows", 3, [&](int) {
        form.table().MoveTo({0, kRx});
        form.select(0, kDeleted);
        WindowInput::key(Qt::Key_D, Qt::ControlModifier);
    });
    form.measure("copy 2,000 rows", 3, [&](int) {
        form.grid().Ifield_SelectAll();
        form.grid().Ifield_Copy();
    });
    form.measure("paste 2,000 rows over them", 3, [&](int) {
        form.grid().Ifield_SelectAll();
        form.grid().Ifield_Paste();
    });
    form.measure("delete 500 selected rows", 1, [&](int) {
        form.select(0, kDeleted);
        form.click("cmdDelete");
    });
}
} // namespace

// kx4600gridprobe FILE: the channels form of a full data file, in a process of its own for kx4600bench. Says a line a
// figure: its name and milliseconds.
int main(int argc, char **argv) {
    ErrorReport errors(false);
    const MainApplication application(argc, argv, errors);
    YesBoxes boxes;
    MainProgram program(errors, QApplication::arguments().sliced(1), {.boxes = &boxes});
    if (!program.Start())
        return 1;
    program.Window().TransformerEvents_ChangeToForm(QStringLiteral("usrctlChannelsKX4600"));
    if (program.Component().GetCurrentFormName() != QStringLiteral("Channels"))
        return 1;
    measureAll(ChannelGrid(program.Window()));
    return 0;
}
