// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/window/plotbuttons.h"

#include "host/safety/wholefile.h"
#include "host/window/flowlayout.h"
#include "host/window/plotpictures.h"
#include "host/window/plotview.h"
#include "host/window/questions.h"

#include <QClipboard>
#include <QDir>
#include <QEvent>
#include <QFileInfo>
#include <QGuiApplication>
#include <QPushButton>
#include <QRegularExpression>

using namespace Qt::Literals::StringLiterals;

namespace Host {
namespace {

/** A name that every file system takes. */
QString fileNameFor(const QString &name)
{
    static const QRegularExpression unusual(u"[\\x00-\\x1f/\\\\:*?\"<>|]"_s);
    return QString(name).replace(unusual, u"_"_s);
}

} // namespace

PlotButtons::PlotButtons(PlotView &plot, Questions &questions, QWidget *parent)
    : QWidget(parent)
    , m_plot(plot)
    , m_questions(questions)
    , m_save(makeButton(&PlotButtons::save))
    , m_copy(makeButton(&PlotButtons::copy))
    , m_print(makeButton(&PlotButtons::print))
    , m_printTable(makeButton(&PlotButtons::tablePrintRequested))
{
    auto *layout = new FlowLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    for (QWidget *button : {m_save, m_copy, m_print, m_printTable})
        layout->addWidget(button);
    retranslate();
}

void PlotButtons::retranslate()
{
    const auto name = [](QPushButton *button, const QString &caption, const QString &description) {
        button->setText(caption);
        button->setToolTip(description);
        button->setAccessibleDescription(description);
    };
    name(m_save, tr("&Save Plot…"), tr("Save the plot as a picture (PNG or SVG)"));
    name(m_copy, tr("&Copy Plot"), tr("Copy the plot to the clipboard"));
    name(m_print, tr("&Print Plot…"), tr("Print the plot"));
    name(m_printTable, tr("Print T&able…"), tr("Print the table above"));
}

void PlotButtons::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QWidget::changeEvent(event);
}

void PlotButtons::setPlotShown(bool shown)
{
    for (QWidget *button : {m_save, m_copy, m_print})
        button->setVisible(shown);
}

QPushButton *PlotButtons::makeButton(void (PlotButtons::*slot)())
{
    auto *button = new QPushButton;
    connect(button, &QPushButton::clicked, this, slot);
    return button;
}

void PlotButtons::save()
{
    const QString path =
        m_questions.chooseSaveFile(tr("Save the Plot"), fileNameFor(m_plot.accessibleName()) + u".png"_s,
                                   {tr("PNG picture (*.png)"), tr("SVG drawing (*.svg)")});
    if (path.isEmpty())
        return;
    const QString ending = QFileInfo(path).suffix().toLower();
    if (ending != u"png"_s && ending != u"svg"_s) {
        m_questions.tell(
            tr("The plot was not saved: a picture is PNG or SVG. Give it a name that ends with “.png” or "
               "“.svg”."));
        return;
    }
    const QString problem =
        WholeFile::write(path, ending == u"svg"_s ? PlotPictures::svg(m_plot) : PlotPictures::png(m_plot));
    if (!problem.isEmpty())
        m_questions.tell(
            tr("The plot was not saved in “%1”: %2.").arg(QDir::toNativeSeparators(path), problem));
}

void PlotButtons::copy()
{
    QGuiApplication::clipboard()->setImage(PlotPictures::image(m_plot));
}

void PlotButtons::print()
{
    m_questions.print(m_plot.accessibleName(), [this](QPrinter &printer) {
        if (!PlotPictures::print(m_plot, printer))
            m_questions.tell(tr("The plot was not printed: the printer or the file for it cannot be written. "
                                "Choose another one."));
    });
}

} // namespace Host
