// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/window/questions.h"

#include "host/window/breakable.h"
#include "host/window/progress.h"

#include <QApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QGridLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPrintDialog>
#include <QPrinter>
#include <QPushButton>
#include <QRegularExpression>
#include <QScreen>
#include <QStandardPaths>
#include <QStyle>
#include <QTableView>

using namespace Qt::Literals::StringLiterals;

namespace Host {
namespace {

/** A box with a text, perhaps a table, and buttons. Not a QMessageBox, which has no place for a table. */
class QuestionBox final : public QDialog
{
public:
    QuestionBox(const Question &question, QStyle::StandardPixmap otherwise);

    Answer ask();

private:
    QLabel *addText(const QString &text);
    void addChoices(const Question &question);
    void addButtons(const Question &question);
    void fit();

    QGridLayout *m_layout;
    QTableView *m_choices = nullptr;
    int m_button;
};

QuestionBox::QuestionBox(const Question &question, QStyle::StandardPixmap otherwise)
    : QDialog(QApplication::activeWindow())
    , m_layout(new QGridLayout(this))
    , m_button(question.refusal)
{
    setWindowTitle(QApplication::applicationDisplayName());
    setAccessibleName(question.text);
    setAccessibleDescription(question.details);
    auto *picture = new QLabel(this);
    const int size = style()->pixelMetric(QStyle::PM_MessageBoxIconSize, nullptr, this);
    const QIcon icon =
        question.picture.isNull() ? style()->standardIcon(otherwise, nullptr, this) : question.picture;
    picture->setPixmap(icon.pixmap(QSize(size, size), devicePixelRatio()));
    m_layout->addWidget(picture, 0, 0, Qt::AlignTop);
    m_layout->setColumnStretch(1, 1);
    QFont strong = font();
    strong.setBold(!question.details.isEmpty());
    addText(question.text)->setFont(strong);
    if (!question.details.isEmpty())
        addText(question.details);
    if (question.choices)
        addChoices(question);
    addButtons(question);
}

QLabel *QuestionBox::addText(const QString &text)
{
    auto *label = new QLabel(breakable(text), this);
    label->setAccessibleName(text);
    label->setTextFormat(Qt::PlainText); // a text from a file is shown as it is, without links
    label->setWordWrap(true);
    // About as wide as a line reads well; the screen may be narrower.
    label->setMinimumWidth(
        qMin(56 * fontMetrics().averageCharWidth(), screen()->availableSize().width() / 2));
    m_layout->addWidget(label, m_layout->rowCount() - (m_layout->count() == 1 ? 1 : 0), 1);
    return label;
}

void QuestionBox::addChoices(const Question &question)
{
    m_choices = new QTableView(this);
    m_choices->setModel(question.choices);
    m_choices->setAccessibleName(question.text);
    m_choices->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_choices->setSelectionMode(QAbstractItemView::SingleSelection);
    m_choices->setTabKeyNavigation(false);
    m_choices->setShowGrid(false);
    m_choices->setWordWrap(false);
    m_choices->verticalHeader()->hide();
    m_choices->selectRow(question.chosen);
    // By the font, not by the contents: those of a row are read when it comes into view.
    const QFontMetrics metrics = m_choices->fontMetrics();
    QHeaderView *header = m_choices->horizontalHeader();
    header->setHighlightSections(false);
    const int nameWidth = metrics.horizontalAdvance(u'0') * 32;
    int width = nameWidth;
    for (int column = 1; column < question.choices->columnCount(); ++column) {
        const int hint = qMax(header->sectionSizeHint(column), metrics.horizontalAdvance(u"0000 bytes0"_s));
        m_choices->setColumnWidth(column, hint);
        width += hint;
    }
    const QSize available = screen()->availableSize() * 9 / 10;
    m_choices->setColumnWidth(0, nameWidth);
    if (width <= available.width()) // else the table scrolls
        header->setSectionResizeMode(0, QHeaderView::Stretch);
    m_choices->setMinimumSize(
        qMin(width, available.width()),
        qMin(8 * m_choices->verticalHeader()->defaultSectionSize(), available.height() / 4));
    m_layout->addWidget(m_choices, m_layout->rowCount(), 0, 1, 2);
    m_layout->setRowStretch(m_layout->rowCount() - 1, 1);
}

void QuestionBox::addButtons(const Question &question)
{
    auto *buttons = new QDialogButtonBox(this);
    for (int i = 0; i < question.answers.size(); ++i) {
        const auto role = i == question.refusal ? QDialogButtonBox::RejectRole : QDialogButtonBox::AcceptRole;
        QPushButton *button = buttons->addButton(question.answers.at(i), role);
        connect(button, &QPushButton::clicked, this, [this, i] {
            m_button = i;
            accept();
        });
        if (i == question.preferred) {
            button->setDefault(true);
            button->setFocus();
        }
    }
    // With its proxy, Tab would leave out what comes before the first button that accepts.
    buttons->setFocusProxy(nullptr);
    m_layout->addWidget(buttons, m_layout->rowCount(), 0, 1, 2);
    if (m_choices)
        m_choices->setFocus();
}

/** As high as its texts need, which Qt would not let it be on a small screen. */
void QuestionBox::fit()
{
    const QSize most = screen()->availableSize() * 19 / 20; // less the frame
    int width = qMin(sizeHint().width(), most.width());
    if (m_layout->totalHeightForWidth(width) > most.height())
        width = most.width();
    resize(width, qMin(m_layout->totalHeightForWidth(width), most.height()));
}

Answer QuestionBox::ask()
{
    fit();
    exec();
    return {m_button, m_choices ? m_choices->currentIndex().row() : -1};
}

/** "png" for "PNG picture (*.png)". */
QString endingOf(const QString &filter)
{
    static const QRegularExpression pattern(u"\\*\\.(\\w+)"_s);
    return pattern.match(filter).captured(1);
}

/** Where a user would look for what he saves. */
QString folderOfDocuments()
{
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    return QFileInfo::exists(documents) ? documents : QDir::homePath();
}

} // namespace

Answer BoxQuestions::ask(const Question &question)
{
    return QuestionBox(question, QStyle::SP_MessageBoxWarning).ask();
}

void BoxQuestions::tell(const QString &text)
{
    Question question;
    question.text = text;
    question.answers = QStringList(QApplication::translate("Questions", "OK"));
    QuestionBox(question, QStyle::SP_MessageBoxCritical).ask();
}

QString BoxQuestions::chooseFolder(const QString &caption)
{
    return QFileDialog::getExistingDirectory(QApplication::activeWindow(), caption);
}

QStringList BoxQuestions::chooseFiles(const QString &caption, const QStringList &filters)
{
    return QFileDialog::getOpenFileNames(QApplication::activeWindow(), caption, QString(),
                                         filters.join(u";;"_s));
}

QString BoxQuestions::chooseSaveFile(const QString &caption, const QString &name, const QStringList &filters)
{
    QFileDialog dialog(QApplication::activeWindow(), caption, folderOfDocuments());
    dialog.setAcceptMode(QFileDialog::AcceptSave); // asks before a file is replaced
    dialog.setNameFilters(filters);
    dialog.setDefaultSuffix(endingOf(filters.value(0)));
    QObject::connect(&dialog, &QFileDialog::filterSelected, &dialog,
                     [&dialog](const QString &filter) { dialog.setDefaultSuffix(endingOf(filter)); });
    dialog.selectFile(name);
    return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}

void BoxQuestions::print(const QString &name, const std::function<void(QPrinter &)> &paint)
{
    QPrinter printer(QPrinter::HighResolution);
    printer.setDocName(name);
    QPrintDialog dialog(&printer, QApplication::activeWindow());
    if (dialog.exec() == QDialog::Accepted)
        paint(printer);
}

std::unique_ptr<Progress> BoxQuestions::progress(const QString &text, int steps)
{
    return std::make_unique<ProgressBox>(text, steps);
}

} // namespace Host
