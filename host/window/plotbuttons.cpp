// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/window/plotbuttons.h"

#include "host/safety/wholefile.h"
#include "host/window/flowlayout.h"
#include "host/window/plotpictures.h"
#include "host/window/plotview.h"
#include "host/window/questions.h"

#include <QClipboard>
#include <QDir>
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
{
    auto *layout = new FlowLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    m_ofPlot = {add(tr("&Save Plot…"), tr("Save the plot as a picture (PNG or SVG)"), &PlotButtons::save),
                add(tr("&Copy Plot"), tr("Copy the plot to the clipboard"), &PlotButtons::copy),
                add(tr("&Print Plot…"), tr("Print the plot"), &PlotButtons::print)};
    add(tr("Print T&able…"), tr("Print the table above"), &PlotButtons::tablePrintRequested);
}

void PlotButtons::setPlotShown(bool shown)
{
    for (QWidget *button : std::as_const(m_ofPlot))
        button->setVisible(shown);
}

QWidget *PlotButtons::add(const QString &caption, const QString &description, void (PlotButtons::*slot)())
{
    auto *button = new QPushButton(caption);
    button->setToolTip(description);
    button->setAccessibleDescription(description);
    layout()->addWidget(button);
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
