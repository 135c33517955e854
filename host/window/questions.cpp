// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/window/questions.h"

#include <QApplication>
#include <QFileDialog>
#include <QGridLayout>
#include <QHeaderView>
#include <QMessageBox>
#include <QPushButton>
#include <QTableView>

#include <memory>

namespace Host {
namespace {

QMessageBox::ButtonRole roleOf(const Question &question, int answer)
{
    return answer == question.refusal ? QMessageBox::RejectRole : QMessageBox::AcceptRole;
}

/** A table of the choices, put between the texts and the buttons of a box. */
QTableView *addChoices(QMessageBox &box, const Question &question)
{
    auto *table = new QTableView(&box);
    table->setModel(question.choices);
    table->setAccessibleName(question.text);
    table->setSelectionBehavior(QAbstractItemView::SelectRows);
    table->setSelectionMode(QAbstractItemView::SingleSelection);
    table->setTabKeyNavigation(false);
    table->setShowGrid(false);
    table->verticalHeader()->hide();
    table->selectRow(question.chosen);
    // By the font, not by the contents: those of a row are read when it comes into view.
    const int digit = table->fontMetrics().horizontalAdvance(u'0');
    table->horizontalHeader()->setSectionResizeMode(0, QHeaderView::Stretch);
    for (int column = 1; column < question.choices->columnCount(); ++column)
        table->setColumnWidth(column, 11 * digit);
    table->setMinimumSize(90 * digit, 10 * table->fontMetrics().height());
    auto *layout = qobject_cast<QGridLayout *>(box.layout());
    const int buttonsRow = layout->rowCount() - 1;
    QLayoutItem *buttons = layout->itemAtPosition(buttonsRow, 0);
    layout->removeItem(buttons);
    layout->addWidget(table, buttonsRow, 0, 1, layout->columnCount());
    layout->addItem(buttons, buttonsRow + 1, 0, 1, layout->columnCount());
    return table;
}

int chosenRow(const QTableView *table)
{
    return table ? table->currentIndex().row() : -1;
}

} // namespace

Answer BoxQuestions::ask(const Question &question)
{
    QMessageBox box(QMessageBox::Warning, QApplication::applicationDisplayName(), question.text,
                    QMessageBox::NoButton, QApplication::activeWindow());
    box.setTextFormat(Qt::PlainText); // a text from a file is shown as it is, without links
    box.setInformativeText(question.details);
    QList<QAbstractButton *> buttons;
    for (int i = 0; i < question.answers.size(); ++i)
        buttons.append(box.addButton(question.answers.at(i), roleOf(question, i)));
    box.setDefaultButton(qobject_cast<QPushButton *>(buttons.at(question.preferred)));
    box.setEscapeButton(buttons.at(question.refusal));
    const QTableView *table = question.choices ? addChoices(box, question) : nullptr;
    box.exec();
    return {static_cast<int>(buttons.indexOf(box.clickedButton())), chosenRow(table)};
}

void BoxQuestions::tell(const QString &text)
{
    QMessageBox box(QMessageBox::Critical, QApplication::applicationDisplayName(), text, QMessageBox::Ok,
                    QApplication::activeWindow());
    box.setTextFormat(Qt::PlainText);
    box.exec();
}

QString BoxQuestions::chooseFolder(const QString &caption)
{
    return QFileDialog::getExistingDirectory(QApplication::activeWindow(), caption);
}

} // namespace Host
