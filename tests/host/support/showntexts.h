// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAbstractItemView>
#include <QAction>
#include <QChart>
#include <QChartView>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QMetaProperty>
#include <QPushButton>
#include <QRadioButton>
#include <QStyle>
#include <QStyleOptionButton>
#include <QStyleOptionComboBox>
#include <QTabBar>
#include <QToolButton>
#include <QWidget>
#include <QXYSeries>

using namespace Qt::Literals::StringLiterals;

/** Every text of a window, with where it stands. */
class ShownTexts
{
public:
    /** @param root with all that is in it, on show or not. */
    explicit ShownTexts(const QWidget &root)
    {
        add(root);
        const QList<QObject *> all = root.findChildren<QObject *>();
        for (const QObject *object : all)
            add(*object);
    }

    /** "QLabel label_3 text", and what it says. */
    const QList<std::pair<QString, QString>> &all() const { return m_all; }

private:
    void add(const QObject &object)
    {
        if (object.objectName().startsWith(u"Scroll")) // buttons of Qt, named once and for all
            return;
        const auto *former = qobject_cast<const QChartView *>(&object);
        if (former && former->isHidden()) // the logbook keeps its charts of before
            return;
        const QString name =
            u"%1 %2 "_s.arg(QLatin1StringView(object.metaObject()->className()), object.objectName());
        for (const char *property :
             {"windowTitle", "text", "title", "toolTip", "accessibleName", "accessibleDescription",
              "placeholderText", "prefix", "suffix", "specialValueText", "inputMask"}) {
            if (object.metaObject()->indexOfProperty(property) >= 0)
                say(name + QLatin1StringView(property), object.property(property).toString());
        }
        if (const auto *chooser = qobject_cast<const QComboBox *>(&object)) {
            for (int i = 0; i < chooser->count(); ++i)
                say(name + u"item"_s, chooser->itemText(i));
        } else if (const auto *tabs = qobject_cast<const QTabBar *>(&object)) {
            for (int i = 0; i < tabs->count(); ++i)
                say(name + u"tab"_s, tabs->tabText(i));
        } else if (qobject_cast<const QHeaderView *>(&object)) {
            return; // its titles are those of its table
        } else if (const auto *view = qobject_cast<const QAbstractItemView *>(&object)) {
            addModel(name, view->model());
        } else if (const auto *plot = qobject_cast<const QChartView *>(&object)) {
            addChart(name, *plot->chart());
        }
    }

    void addModel(const QString &name, const QAbstractItemModel *model)
    {
        if (!model)
            return;
        for (int column = 0; column < model->columnCount(); ++column) {
            for (const int role : {Qt::DisplayRole, Qt::ToolTipRole}) {
                if (model->headerData(column, Qt::Horizontal, role).userType() == QMetaType::QString)
                    say(name + u"header"_s, model->headerData(column, Qt::Horizontal, role).toString());
            }
            for (int row = 0; row < model->rowCount(); ++row) {
                for (const int role :
                     {int(Qt::DisplayRole), int(Qt::ToolTipRole), int(Qt::AccessibleTextRole)})
                    say(name + u"cell"_s, model->index(row, column).data(role).toString());
            }
        }
    }

    void addChart(const QString &name, const QChart &chart)
    {
        say(name + u"plot"_s, chart.title());
        for (const QAbstractAxis *axis : chart.axes())
            say(name + u"axis"_s, axis->titleText());
        const QList<QAbstractSeries *> all = chart.series();
        for (const QAbstractSeries *series : all)
            say(name + u"series"_s, series->name());
    }

    void say(const QString &where, const QString &text)
    {
        if (!text.isEmpty())
            m_all.append({where, text});
    }

    QList<std::pair<QString, QString>> m_all;
};

/** What is on show in a window and cannot be read to its end. */
class ClippedTexts
{
public:
    static QStringList in(const QWidget &root)
    {
        QStringList clipped;
        const QList<QWidget *> all = root.findChildren<QWidget *>();
        for (const QWidget *widget : all) {
            const QString text = widget->isVisible() ? clippedTextOf(*widget) : QString();
            if (!text.isEmpty())
                clipped.append(u"%1 %2: %3"_s.arg(QLatin1StringView(widget->metaObject()->className()),
                                                  widget->objectName(), text));
        }
        return clipped;
    }

private:
    static QString clippedTextOf(const QWidget &widget)
    {
        if (const auto *label = qobject_cast<const QLabel *>(&widget))
            return fits(*label) ? QString() : label->text();
        if (const auto *button = qobject_cast<const QAbstractButton *>(&widget))
            return fits(*button) ? QString() : button->text();
        if (const auto *chooser = qobject_cast<const QComboBox *>(&widget))
            return fits(*chooser) ? QString() : chooser->currentText();
        if (const auto *tabs = qobject_cast<const QTabBar *>(&widget))
            return clippedTab(*tabs);
        if (const auto *group = qobject_cast<const QGroupBox *>(&widget))
            return group->width() >= widthOf(*group, group->title()) ? QString() : group->title();
        return QString();
    }

    static int widthOf(const QWidget &widget, const QString &text)
    {
        return widget.fontMetrics().size(Qt::TextShowMnemonic, text).width();
    }

    static bool fits(const QLabel &label)
    {
        if (label.text().isEmpty())
            return true;
        const QRect room = label.contentsRect();
        if (label.wordWrap()) {
            const QRect needed =
                label.fontMetrics().boundingRect(QRect(0, 0, room.width(), QWIDGETSIZE_MAX),
                                                 Qt::TextWordWrap | Qt::TextShowMnemonic, label.text());
            return label.heightForWidth(label.width()) <= label.height() && needed.width() <= room.width();
        }
        return widthOf(label, label.text()) <= room.width() &&
               label.fontMetrics().height() <= room.height() + 2;
    }

    static bool fits(const QAbstractButton &button)
    {
        if (button.text().isEmpty())
            return true;
        QStyleOptionButton option;
        option.initFrom(&button);
        option.text = button.text();
        const bool isBox = button.inherits("QCheckBox");
        const bool isChoice = button.inherits("QRadioButton");
        const QStyle::SubElement part = isBox      ? QStyle::SE_CheckBoxContents
                                        : isChoice ? QStyle::SE_RadioButtonContents
                                                   : QStyle::SE_PushButtonContents;
        const QRect room = qobject_cast<const QToolButton *>(&button)
                               ? button.rect()
                               : button.style()->subElementRect(part, &option, &button);
        return widthOf(button, button.text()) <= room.width();
    }

    static bool fits(const QComboBox &chooser)
    {
        QStyleOptionComboBox option;
        option.initFrom(&chooser);
        option.editable = chooser.isEditable();
        const QRect room = chooser.style()->subControlRect(QStyle::CC_ComboBox, &option,
                                                           QStyle::SC_ComboBoxEditField, &chooser);
        return widthOf(chooser, chooser.currentText()) <= room.width();
    }

    static QString clippedTab(const QTabBar &tabs)
    {
        for (int i = 0; i < tabs.count(); ++i) {
            if (widthOf(tabs, tabs.tabText(i)) > tabs.tabRect(i).width())
                return tabs.tabText(i);
            if (tabs.tabRect(i).right() > tabs.width() && !tabs.usesScrollButtons())
                return tabs.tabText(i);
        }
        return QString();
    }
};
