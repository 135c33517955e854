// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/data/changes.h"

#include <QTest>

using namespace Host;
using namespace Qt::Literals::StringLiterals;

namespace {

using Edit = std::function<void(Catalogue &)>;

Catalogue sample()
{
    Catalogue catalogue;
    catalogue.locations = QStringList{u"Club field"_s, u"Meadow"_s};
    for (const QString &name : {u"3S A"_s, u"3S B"_s}) {
        Battery battery;
        battery.name = name;
        battery.discharges.append({QDateTime(QDate(2026, 5, 1), QTime(12, 0)), 300, 1200});
        catalogue.batteries.append(battery);
    }
    for (const QString &name : {u"Firebrand"_s, u"Skylark"_s}) {
        Model model;
        model.name = name;
        model.log.append(
            {QDateTime(QDate(2026, 5, 1), QTime(12, 0)), QTime(0, 5), u"Meadow"_s, 12, u"calm"_s});
        catalogue.models.append(model);
    }
    return catalogue;
}

} // namespace

Q_DECLARE_METATYPE(Edit)

class ChangesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aChangeIsNamed_data();
    void aChangeIsNamed();
};

void ChangesTest::aChangeIsNamed_data()
{
    QTest::addColumn<Edit>("edit");
    const auto row = [](const char *name, const Edit &edit) { QTest::newRow(name) << edit; };
    row("Charged 3S B", [](Catalogue &c) { c.batteries[1].charged = true; });
    row("Discharged 3S A", [](Catalogue &c) {
        c.batteries[0].charged = false;
        c.batteries[0].discharges.append(Discharge());
        c.models[0].log.append(Flight());
    });
    row("Battery 3S A renamed", [](Catalogue &c) { c.batteries[0].name = u"3S C"_s; });
    row("Battery 3S B edited", [](Catalogue &c) { c.batteries[1].capacity = 5; });
    row("Battery New added", [](Catalogue &c) {
        c.batteries.append(Battery());
        c.batteries.last().name = u"New"_s;
    });
    row("Battery 3S A deleted", [](Catalogue &c) { c.batteries.removeFirst(); });
    row("Model Firebrand renamed", [](Catalogue &c) { c.models[0].name = u"Other"_s; });
    row("Batteries of Skylark changed", [](Catalogue &c) { c.models[1].batteries.append(u"3S A"_s); });
    row("Flight of Skylark recorded", [](Catalogue &c) { c.models[1].log.append(Flight()); });
    row("Flight of Firebrand edited", [](Catalogue &c) { c.models[0].log[0].notes = u"windy"_s; });
    row("Flight of Firebrand deleted", [](Catalogue &c) { c.models[0].log.clear(); });
    row("Model Skylark edited", [](Catalogue &c) { c.models[1].weight = 7; });
    row("Model New added", [](Catalogue &c) {
        c.models.append(Model());
        c.models.last().name = u"New"_s;
    });
    row("Model Skylark deleted", [](Catalogue &c) { c.models.removeLast(); });
    row("Location Slope added", [](Catalogue &c) { c.locations.append(u"Slope"_s); });
    row("Location Club field deleted", [](Catalogue &c) { c.locations.removeFirst(); });
    row("Change of the logbook", [](Catalogue &c) {
        c.locations.clear();
        c.batteries.clear();
    });
}

void ChangesTest::aChangeIsNamed()
{
    QFETCH(Edit, edit);
    Catalogue before = sample();
    before.batteries[0].charged = true;
    Catalogue after = before;
    edit(after);
    QCOMPARE(changeName(before, after), QString::fromUtf8(QTest::currentDataTag()));
}

QTEST_APPLESS_MAIN(ChangesTest)
#include "tst_changes.moc"
