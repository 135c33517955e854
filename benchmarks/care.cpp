// SPDX-License-Identifier: GPL-3.0-or-later
#include "benchmarks.h"
#include "measure.h"
#include "openwindow.h"
#include "report.h"

#include "host/safety/folderlock.h"
#include "host/window/mainwindow.h"
#include "host/window/messagebar.h"
#include "host/window/questions.h"
#include "host/window/savecare.h"

#include <memory>

using namespace Qt::Literals::StringLiterals;

namespace {

/** The program's window over a catalogue, after the save of which it looks, copies and tells. */
class CaredWindow
{
public:
    explicit CaredWindow(const Catalogue &catalogue)
        : window(questions)
    {
        catalogue.writeTo(folder.path());
        window.open(Host::StorageFolder(folder.path()), std::make_shared<Host::FolderLock>());
        window.show();
        finish();
    }

    /** What follows on a save, in the window's thread: at once, and when the copy is made. */
    double seconds(bool edited)
    {
        Host::SaveWatch &watch = window.m_care->m_watch;
        double time = Measure::threadSeconds([&] { watch.beforeClick(); });
        window.m_gui->writeDataWithDataprocessor();
        time += Measure::threadSeconds([&] {
            if (edited) { // as if the overview had got new cards; a reload would have to be drawn here
                watch.watchCards(window.m_gui->ui->scrollArea->widget());
                watch.m_contentBeforeClick = nullptr;
                watch.editClicked();
            } else {
                watch.cardChanged();
            }
            settle();
        });
        window.m_care->m_keeper.lookAndWait();
        return time + Measure::threadSeconds([] { settle(); });
    }

    /** Waits for the copy. */
    void finish()
    {
        settle();
        window.m_care->m_keeper.lookAndWait();
        settle();
    }

private:
    QTemporaryDir folder;
    Host::UnattendedQuestions questions;
    Host::MainWindow window;
};

} // namespace

void Benchmarks::care(Report &report, const Plan &plan)
{
    constexpr int Entries = 100'000;
    const Catalogue catalogue = Catalogue::withEntries(Entries);
    CaredWindow cared(catalogue);
    OpenWindow plain(catalogue);
    const auto saveAndReload = [&plain] {
        return Measure::threadSeconds([&plain] {
            plain->saveAndReload();
            settle();
        });
    };
    for (const bool edited : {false, true})
        report.compare(
            u"care for the file and its copies after %1, %2 entries"_s
                .arg(edited ? u"an edit"_s : u"a click on a card"_s)
                .arg(Entries),
            u"the window's own save and reload"_s, plan.rounds(Entries),
            [&cared, edited] { return cared.seconds(edited); }, saveAndReload, 0.1);
}
