// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "gui/voltbokgui.h"
#include "plugin/rotavexplugin.h"
#include "records/batterywidget.h"
#include "records/modelwidget.h"
#include "tests/support/files.h"
#include "tests/support/warnings.h"
#include "ui_voltbokgui.h"

#include <QSettings>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

using namespace Qt::Literals::StringLiterals;

/**
 * A window on show over a data file in a folder of its own, with empty preferences; for tests that use it as
 * a pilot does. Any Qt warning fails the test that made one.
 */
class LogbookWindow
{
public:
    static constexpr QLatin1StringView ModeKey{"SETTINGS/voltbok"};
    static constexpr QLatin1StringView ModelKey{"SETTINGS/logmodel"};

    LogbookWindow()
    {
        Test::failOnWarnings();
        RotavexPlugin::rotavexSettings->clear();
        restart();
    }

    /** From the next load on, every card asks for the figures of a discharge. */
    static void storeFullMode() { RotavexPlugin::rotavexSettings->setValue(ModeKey, u"Complex"_s); }
    /** The model that every load preselects. */
    static void storeModel(const QVariant &name) { RotavexPlugin::rotavexSettings->setValue(ModelKey, name); }

    /** Another window over the same folder; the one before is deleted. */
    void restart()
    {
        m_gui.reset();
        m_gui = std::make_unique<VoltbokGui>();
        m_gui->changeStoragePath(folder());
        m_gui->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_gui.get()));
    }

    /** Puts a data file into the folder and loads it. */
    void load(const QByteArray &xml)
    {
        QVERIFY(Test::write(filePath(), xml));
        m_gui->changeStoragePath(folder());
    }

    VoltbokGui *operator->() { return m_gui.get(); }
    VoltbokGui &gui() { return *m_gui; }
    Ui_VoltbokGui &ui() { return *m_gui->ui; }

    QString folder() const { return m_folder.path(); }
    QString filePath() const { return Test::dataFile(folder()); }

    /** The data file's bytes. */
    QByteArray fileBytes() const { return Test::contents(filePath()); }

    /** The battery with this name; null when there is none. */
    BatteryWidget *battery(const QString &name)
    {
        for (BatteryWidget *battery : m_gui->batteryList) {
            if (battery->getBatteryName() == name)
                return battery;
        }
        return nullptr;
    }

    ModelWidget *model(const QString &name)
    {
        for (ModelWidget *model : m_gui->modelList) {
            if (model->getModelName() == name)
                return model;
        }
        return nullptr;
    }

    QStringList batteryNames() { return namesOf(m_gui->batteryList, &BatteryWidget::getBatteryName); }
    QStringList modelNames() { return namesOf(m_gui->modelList, &ModelWidget::getModelName); }

    QList<QComboBox *> modelChoosers()
    {
        return {ui().cb_select_model, ui().cb_logview_model, ui().cb_model_choose_bat,
                ui().cb_modelList_delete};
    }
    QList<QComboBox *> batteryChoosers()
    {
        return {ui().cb_batteryData, ui().cb_batteryList_delete, ui().cb_bat_choose_model};
    }
    QList<QComboBox *> locationChoosers() { return {ui().cb_log_location, ui().cb_location_delete}; }

    static QStringList items(const QComboBox *chooser)
    {
        QStringList texts;
        for (int i = 0; i < chooser->count(); ++i)
            texts.append(chooser->itemText(i));
        return texts;
    }

    /** The names of the cards on show, from top to bottom. */
    QStringList cardsOnShow()
    {
        QStringList names;
        for (int row = 0; row < ui().lo_overview->rowCount(); ++row) {
            QLayoutItem *item = ui().lo_overview->itemAtPosition(row, 0);
            auto *card = item ? qobject_cast<BatteryWidget *>(item->widget()) : nullptr;
            if (card && card->isVisible())
                names.append(card->getBatteryName());
        }
        return names;
    }

    /** Clicks in the middle of a button that must be on show and enabled. */
    static void click(QAbstractButton *button)
    {
        QVERIFY2(button->isVisible() && button->isEnabled(), qPrintable(button->objectName()));
        // The whole surface of a radio button is not its label: the left edge always is.
        const bool radio = button->inherits("QRadioButton");
        QTest::mouseClick(button, Qt::LeftButton, {}, radio ? QPoint(6, button->height() / 2) : QPoint());
    }

    static void clickCard(BatteryWidget *card) { click(card->findChild<QPushButton *>(u"pushButton"_s)); }

    /** Replaces a field's content by typing. */
    static void type(QLineEdit *field, const QString &text)
    {
        QVERIFY2(field->isVisible(), qPrintable(field->objectName()));
        field->setFocus();
        field->selectAll();
        QTest::keyClick(field, Qt::Key_Delete);
        field->setCursorPosition(0);
        QTest::keyClicks(field, text);
    }

    /** Chooses an item as a user does, with the keyboard. */
    static void choose(QComboBox *chooser, const QString &text)
    {
        const int wanted = chooser->findText(text);
        QVERIFY2(wanted >= 0, qPrintable(text));
        while (chooser->currentIndex() != wanted)
            QTest::keyClick(chooser, chooser->currentIndex() < wanted ? Qt::Key_Down : Qt::Key_Up);
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

    QTemporaryDir m_folder;
    std::unique_ptr<VoltbokGui> m_gui;
};
