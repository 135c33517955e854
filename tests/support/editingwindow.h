// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "gui/pages.h"
#include "tests/support/logbookwindow.h"
#include "tests/support/samples.h"

/** The tests' window with the ways that lead to its editing pages. */
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

    /** Whether a time that is kept in whole seconds lies between @p start and now. */
    static bool isSince(const QDateTime &start, const QDateTime &moment)
    {
        return start.addMSecs(-start.time().msec()) <= moment && moment <= QDateTime::currentDateTime();
    }
};
