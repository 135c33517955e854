// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "gui/pages.h"
#include "tests/support/logbookwindow.h"

/** The tests' window with the ways that lead to its editing pages, and the files they start from. */
class EditingWindow : public LogbookWindow
{
public:
    void goToOverview()
    {
        for (int clicks = 0; gui().currentPage != Page::Overview && clicks < 2; ++clicks)
            click(ui().pb_options);
        QCOMPARE(gui().currentPage, int(Page::Overview));
    }

    void goToEditPage()
    {
        goToOverview();
        click(ui().pb_options);
        click(ui().pb_edit_data);
    }

    /** Goes to the page behind a button of the edit page. */
    void goTo(QPushButton *button)
    {
        goToEditPage();
        click(button);
    }

    bool shows(QWidget *page, int id)
    {
        return ui().stackedWidget->currentWidget() == page && gui().currentPage == id;
    }
    bool showsOverview() { return shows(ui().scrollLayout, Page::Overview); }

    void addBattery(const QString &name)
    {
        goTo(ui().pb_choose_addbattery);
        type(ui().ledt_name, name);
        click(ui().pb_addNewBattery);
    }

    void addModel(const QString &name)
    {
        goTo(ui().pb_choose_addmodel);
        type(ui().ledt_addheli_name, name);
        click(ui().pb_addNewModel);
    }

    void addLocation(const QString &name)
    {
        goTo(ui().pb_choose_addlocation);
        type(ui().ledt_location_new, name);
        click(ui().pb_add_location);
    }

    void assign(const QString &battery, const QString &model)
    {
        goToEditPage();
        choose(ui().cb_model_choose_bat, model);
        choose(ui().cb_bat_choose_model, battery);
        click(ui().pb_add_batt_to_model);
    }

    QStringList batteryNames() { return namesOf(gui().batteryList, &BatteryWidget::getBatteryName); }
    QStringList modelNames() { return namesOf(gui().modelList, &ModelWidget::getModelName); }

    static QStringList items(const QComboBox *chooser)
    {
        QStringList texts;
        for (int i = 0; i < chooser->count(); ++i)
            texts.append(chooser->itemText(i));
        return texts;
    }

    /** Whether a time that is kept in whole seconds lies between @p start and now. */
    static bool isSince(const QDateTime &start, const QDateTime &moment)
    {
        return start.addMSecs(-start.time().msec()) <= moment && moment <= QDateTime::currentDateTime();
    }

    /** The text of a data file with these elements below its root. */
    static QByteArray document(const QByteArrayList &elements)
    {
        return "<?xml version=\"1.0\" encoding=\"UTF-8\"?><!DOCTYPE Voltbok><Voltbok>" + elements.join() +
               "</Voltbok>";
    }

    static QByteArray locationsElement(const QByteArrayList &names)
    {
        QByteArray entries;
        for (const QByteArray &name : names)
            entries += "<Location Name=\"" + name + "\"/>";
        return "<Locations>" + entries + "</Locations>";
    }

    /** A charged battery that was flown once. */
    static QByteArray batteryElement(const QByteArray &name, const QByteArray &capacity = "2200",
                                     const QByteArray &chargeRate = "20")
    {
        return "<Battery><Name>" + name + "</Name><Capacity>" + capacity + "</Capacity><Chrgrate>" +
               chargeRate +
               "</Chrgrate><Dischrgrate>25</Dischrgrate><Purchase>2024/02/29</Purchase><Cycles>7</Cycles>"
               "<Charged>1</Charged><LastUse>Sun Nov 9 08:07:06 2025</LastUse><Data>"
               "<Cycle Discharged=\"1500\" Current=\"4550\" Date=\"Sat Nov 8 10:30:00 "
               "2025\"/></Data></Battery>";
    }

    /** A model that was flown once, with its batteries' names. */
    static QByteArray modelElement(const QByteArray &name, const QByteArrayList &batteries = {},
                                   const QByteArray &weight = "150")
    {
        QByteArray assigned;
        for (const QByteArray &battery : batteries)
            assigned += "<Battery>" + battery + "</Battery>";
        return "<Model><Name>" + name + "</Name><Type>Heli</Type><Weight>" + weight +
               "</Weight><Size>700</Size><Purchase>2023/12/31</Purchase><Flights>12</Flights><Notes>blue</"
               "Notes>"
               "<LastUpdate>Fri Nov 7 06:05:04 2025</LastUpdate>" +
               assigned +
               "<FlightLog><LogData Date=\"Sat Nov 8 10:30:00 2025\" Location=\"Meadow\" "
               "Duration=\"00:07:30\" "
               "Temperature=\"4294967291\" Notes=\"windy\"/></FlightLog></Model>";
    }

private:
    template <typename Record, typename Getter>
    static QStringList namesOf(const QList<Record *> &records, Getter getter)
    {
        QStringList names;
        for (Record *record : records)
            names.append((record->*getter)());
        return names;
    }
};
