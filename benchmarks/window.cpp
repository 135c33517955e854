// SPDX-License-Identifier: GPL-3.0-or-later
#include "bare.h"
#include "benchmarks.h"
#include "catalogue.h"
#include "measure.h"
#include "openwindow.h"
#include "report.h"

#include "plugin/rotavexplugin.h"
#include "records/batterywidget.h"
#include "records/modelwidget.h"

#include <QLabel>
#include <QScrollArea>
#include <QSettings>
#include <QVBoxLayout>

#include <benchmark/benchmark.h>

#include <memory>
#include <optional>
#include <vector>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int LabelsOfACard = 12;

using Widgets = std::vector<std::unique_ptr<QWidget>>;

std::unique_ptr<QWidget> makeCard()
{
    auto card = std::make_unique<BatteryWidget>();
    QString name = u"LiPo 6S 3300"_s;
    card->setBatteryName(name);
    card->setBatteryCapacity(3300);
    card->setBatteryChargeRate(20);
    card->setBatteryRating(45);
    card->setBatteryCycles(12);
    card->setBatteryCharged(true, false);
    card->setLastUpdated(QDateTime(QDate(2026, 11, 15), QTime(12, 4, 22)));
    card->setBatteryLastDischarged(2640);
    card->setBatteryLastMaxCurrent(8150);
    return card;
}

std::unique_ptr<QWidget> makePlainCard()
{
    auto card = std::make_unique<QWidget>();
    auto *layout = new QVBoxLayout(card.get());
    for (int i = 0; i < LabelsOfACard; ++i) {
        auto *label = new QLabel(card.get());
        label->setText(u"3300mAh"_s);
        layout->addWidget(label);
    }
    return card;
}

Measure::Run building(int count, std::unique_ptr<QWidget> (*make)())
{
    return [count, make] {
        Widgets cards;
        cards.reserve(static_cast<size_t>(count));
        return Measure::seconds([&] {
            for (int i = 0; i < count; ++i)
                cards.push_back(make());
        });
    };
}

void measureCards(Report &report, int rounds)
{
    for (const int count : {10, 100, 1000})
        report.compare(u"%1 cards built and filled"_s.arg(count),
                       u"%1 plain widgets with %2 labels"_s.arg(count).arg(LabelsOfACard), rounds,
                       building(count, makeCard), building(count, makePlainCard),
                       count == 100 ? std::optional(3.0) : std::nullopt);
}

template <typename Make>
Measure::Run showing(Make make)
{
    return [make] {
        std::unique_ptr<QMainWindow> window;
        return Measure::seconds([&] {
            window = make();
            window->show();
            settle();
        });
    };
}

/** A window with many labels on one page. */
class PlainWindow : public QMainWindow
{
public:
    explicit PlainWindow(int labels)
    {
        auto *content = new QWidget;
        auto *layout = new QVBoxLayout(content);
        for (int i = 0; i < labels; ++i)
            layout->addWidget(new QLabel(u"Capacity"_s, content));
        auto *area = new QScrollArea; // only a window full of them is painted
        area->setWidget(content);
        setCentralWidget(area);
    }
};

void measureWindow(Report &report, int rounds)
{
    const QString work = u"window constructed and shown"_s;
    const auto logbook = [] { return std::make_unique<VoltbokGui>(); };
    const auto widgets = static_cast<int>(logbook()->findChildren<QWidget *>().size());
    report.compare(work, u"an empty QMainWindow"_s, rounds, showing(logbook),
                   showing([] { return std::make_unique<QMainWindow>(); }), 8.0);
    report.compare(work, u"a QMainWindow with %1 labels, as many as there are widgets"_s.arg(widgets), rounds,
                   showing(logbook), showing([widgets] { return std::make_unique<PlainWindow>(widgets); }));
}

void measureReload(Report &report, const QString &work, int entries, int rounds,
                   std::optional<double> target = {})
{
    OpenWindow window(Catalogue::withEntries(entries));
    const Bare::Texts texts = Bare::textsOf(window.path());
    report.compare(
        u"%1, 100 batteries, %2 entries"_s.arg(work).arg(entries), u"three bare passes + one conversion"_s,
        rounds,
        [&] {
            return Measure::seconds([&] {
                window->updateBatteryGui();
                settle();
            });
        },
        [&] {
            return Measure::seconds([&] {
                for (int pass = 0; pass < 3; ++pass)
                    Bare::read(window.path());
                texts.convert();
            });
        },
        target);
}

void measureReloads(Report &report, int entries, int rounds)
{
    const bool judged = entries == 100'000;
    const QString captureMode = u"SETTINGS/voltbok"_s;
    measureReload(report, u"whole reload with redraw"_s, entries, rounds,
                  judged ? std::optional(1.10) : std::nullopt);
    if (!judged)
        return;
    QSettings &store = *RotavexPlugin::rotavexSettings;
    store.setValue(captureMode, u"Complex"_s);
    measureReload(report, u"whole reload with redraw, cards in full"_s, entries, rounds);
    store.remove(captureMode);
}

/** A scroll area that gets as many plain cards as a model has batteries moved to a new column. */
class PlainOverview
{
public:
    explicit PlainOverview(int count)
    {
        area.setWidgetResizable(true);
        for (int i = 0; i < count; ++i)
            cards.push_back(makePlainCard());
        area.resize(320, 480);
        rebuild();
        area.show();
        settle();
    }

    void rebuild()
    {
        QWidget *old = area.takeWidget();
        auto *content = new QWidget;
        auto *layout = new QVBoxLayout(content);
        for (const auto &card : cards)
            layout->addWidget(card.get());
        area.setWidget(content);
        delete old;
    }

private:
    QScrollArea area;
    Widgets cards; // deleted before the area that they are shown in
};

void measureModelSwitch(Report &report, int rounds)
{
    Catalogue catalogue;
    catalogue.history = 50;
    catalogue.flights = 50;
    OpenWindow window(catalogue);
    PlainOverview plain(catalogue.batteriesOfAModel);
    report.compare(
        u"model switched, %1 cards, with redraw"_s.arg(catalogue.batteriesOfAModel),
        u"as many plain widgets moved to a new column"_s, rounds,
        [&] {
            return Measure::seconds([&] {
                window.chooseNextModel();
                settle();
            });
        },
        [&] {
            return Measure::seconds([&] {
                plain.rebuild();
                settle();
            });
        });
}

/** The newest flight lies at the end of every history, as a search in all of them finds it. */
void measureLogBook(Report &report, int entries, int rounds)
{
    OpenWindow window(Catalogue::withEntries(entries));
    const auto searchDates = [&] {
        const QDateTime moment = window->modelList.constFirst()->getLogData().constLast().date;
        qsizetype found = 0;
        for (BatteryWidget *battery : std::as_const(window->batteryList))
            found += battery->getDates().indexOf(moment);
        benchmark::DoNotOptimize(found);
    };
    const QString size = u", %1 entries"_s.arg(entries);
    report.compare(
        u"log book opened"_s + size, u"a search in the same dates"_s, rounds,
        [&] {
            return Measure::seconds([&] {
                window->on_pb_logbook_clicked();
                settle();
            });
        },
        [&] { return Measure::seconds(searchDates); });
    report.compare(
        u"log book, a step back and one forth"_s + size, u"two searches in the same dates"_s, rounds,
        [&] {
            return Measure::seconds([&] {
                window->on_pb_logview_prev_clicked();
                window->on_pb_logview_next_clicked();
            });
        },
        [&] {
            return Measure::seconds([&] {
                searchDates();
                searchDates();
            });
        });
}

} // namespace

void Benchmarks::window(Report &report, const Plan &plan)
{
    measureWindow(report, plan.rounds(1000));
    measureCards(report, plan.rounds(10'000));
    measureModelSwitch(report, plan.rounds(1000));
    for (const int entries : plan.sizes()) {
        measureReloads(report, entries, plan.rounds(entries));
        measureLogBook(report, entries, plan.rounds(entries));
    }
}
