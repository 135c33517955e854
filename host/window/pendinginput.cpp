// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/window/pendinginput.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QStackedWidget>
#include <QStringList>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace Host {
namespace {

const QString DischargePage = u"dischargeView"_s;
/** The pages that are filled in and sent off; on all others every choice counts at once. */
bool isFormPage(const QString &name)
{
    const QStringList forms{u"addView"_s, u"addModelView"_s, u"addLocationView"_s, u"modBatteryView"_s,
                            u"modModelView"_s};
    return forms.contains(name);
}

/** Whether a cell of a table is being edited: its editor lies on the table's viewport. */
bool isCellEdited()
{
    const QWidget *editor = QApplication::focusWidget();
    const QWidget *viewport = editor ? editor->parentWidget() : nullptr;
    const auto *table = viewport ? qobject_cast<QAbstractItemView *>(viewport->parentWidget()) : nullptr;
    return table && table->viewport() == viewport;
}

} // namespace

PendingInput::PendingInput(QStackedWidget &pages, QObject *parent)
    : QObject(parent)
    , m_pages(pages)
{
    connect(&pages, &QStackedWidget::currentChanged, this, &PendingInput::pageShown);
    pageShown();
}

bool PendingInput::isFlight() const
{
    return m_pages.currentWidget()->objectName() == DischargePage;
}

bool PendingInput::isForm() const
{
    return isFormPage(m_pages.currentWidget()->objectName()) && inputs() != m_shown;
}

bool PendingInput::isInUse() const
{
    return isAny() || isAsking() || QApplication::activeModalWidget() || QApplication::activePopupWidget() ||
           QApplication::mouseButtons() != Qt::NoButton || isCellEdited();
}

/** Whether a page waits for the second click of a deletion, whose chooser must not change. */
bool PendingInput::isAsking() const
{
    const auto buttons = m_pages.currentWidget()->findChildren<QAbstractButton *>();
    return std::any_of(buttons.cbegin(), buttons.cend(),
                       [](const QAbstractButton *button) { return button->property("asking").toBool(); });
}

void PendingInput::pageShown()
{
    m_shown = inputs(); // the window fills a page in before it shows it
}

QHash<const QWidget *, QString> PendingInput::inputs() const
{
    QHash<const QWidget *, QString> texts;
    const QWidget *page = m_pages.currentWidget();
    for (const QLineEdit *field : page->findChildren<QLineEdit *>())
        texts.insert(field, field->text());
    for (const QPlainTextEdit *notes : page->findChildren<QPlainTextEdit *>())
        texts.insert(notes, notes->toPlainText());
    return texts;
}

} // namespace Host
