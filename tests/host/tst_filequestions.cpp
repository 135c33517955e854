// SPDX-License-Identifier: GPL-3.0-or-later
// The dialogs for folders, files and printers, on a real platform.
#include "tests/host/support/xvfb.h"

#include "host/window/questions.h"

#include <QApplication>
#include <QFileDialog>
#include <QLineEdit>
#include <QPrintDialog>
#include <QPrinter>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

using namespace Qt::Literals::StringLiterals;

class FileQuestionsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aFolderIsChosenOrNot();
    void severalFilesAreChosenOrNone();
    void aFileToWriteIsChosenOrNot_data();
    void aFileToWriteIsChosenOrNot();
    void onlyWhoWantsToPrintPaints_data();
    void onlyWhoWantsToPrintPaints();
};

void FileQuestionsTest::aFolderIsChosenOrNot()
{
    QTimer::singleShot(200, this, [] {
        auto *dialog = qobject_cast<QFileDialog *>(QApplication::activeModalWidget());
        QVERIFY(dialog);
        QCOMPARE(dialog->windowTitle(), u"Keep it"_s);
        QCOMPARE(dialog->fileMode(), QFileDialog::Directory);
        dialog->reject();
    });
    QCOMPARE(Host::BoxQuestions().chooseFolder(u"Keep it"_s), QString());
}

void FileQuestionsTest::severalFilesAreChosenOrNone()
{
    const QTemporaryDir folder;
    const QStringList paths{folder.filePath(u"a.csv"_s), folder.filePath(u"b.csv"_s)};
    for (const QString &path : paths)
        QVERIFY(QFile(path).open(QFile::WriteOnly));
    for (const bool isChosen : {true, false}) {
        QTimer::singleShot(200, this, [&] {
            auto *dialog = qobject_cast<QFileDialog *>(QApplication::activeModalWidget());
            QVERIFY(dialog);
            QCOMPARE(dialog->windowTitle(), u"Logs"_s);
            QCOMPARE(dialog->nameFilters(), (QStringList{u"Logs (*.csv)"_s, u"All (*)"_s}));
            dialog->setDirectory(folder.path());
            dialog->findChild<QLineEdit *>(u"fileNameEdit"_s)->setText(u"\"a.csv\" \"b.csv\""_s);
            if (isChosen)
                dialog->accept();
            else
                dialog->reject();
        });
        QCOMPARE(Host::BoxQuestions().chooseFiles(u"Logs"_s, {u"Logs (*.csv)"_s, u"All (*)"_s}),
                 isChosen ? paths : QStringList());
    }
}

void FileQuestionsTest::aFileToWriteIsChosenOrNot_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("filter");
    QTest::addColumn<QString>("chosen");
    const QString png = u"PNG picture (*.png)"_s;
    const QString svg = u"SVG drawing (*.svg)"_s;
    QTest::newRow("with an ending") << u"mine.png"_s << png << u"mine.png"_s;
    QTest::newRow("without one") << u"mine"_s << png << u"mine.png"_s;
    QTest::newRow("of the other kind") << u"mine"_s << svg << u"mine.svg"_s;
    QTest::newRow("none") << QString() << png << QString();
}

void FileQuestionsTest::aFileToWriteIsChosenOrNot()
{
    QFETCH(QString, typed);
    QFETCH(QString, filter);
    QFETCH(QString, chosen);
    const QTemporaryDir folder;
    QTimer::singleShot(200, this, [&] {
        auto *dialog = qobject_cast<QFileDialog *>(QApplication::activeModalWidget());
        QVERIFY(dialog);
        QCOMPARE(dialog->windowTitle(), u"Save the Plot"_s);
        QCOMPARE(dialog->acceptMode(), QFileDialog::AcceptSave);
        QVERIFY(!dialog->testOption(QFileDialog::DontConfirmOverwrite));
        QVERIFY(dialog->selectedFiles().constFirst().endsWith(u"/Plot.png"_s));
        dialog->setDirectory(folder.path());
        if (filter != dialog->selectedNameFilter()) {
            dialog->selectNameFilter(filter);
            Q_EMIT dialog->filterSelected(filter); // as when a user does it
        }
        dialog->findChild<QLineEdit *>(u"fileNameEdit"_s)->setText(typed);
        if (typed.isEmpty())
            dialog->reject();
        else
            dialog->accept();
    });
    const QString path = Host::BoxQuestions().chooseSaveFile(
        u"Save the Plot"_s, u"Plot.png"_s, {u"PNG picture (*.png)"_s, u"SVG drawing (*.svg)"_s});
    QCOMPARE(path, chosen.isEmpty() ? QString() : folder.filePath(chosen));
}

void FileQuestionsTest::onlyWhoWantsToPrintPaints_data()
{
    QTest::addColumn<bool>("wants");
    QTest::newRow("wants") << true;
    QTest::newRow("does not want") << false;
}

void FileQuestionsTest::onlyWhoWantsToPrintPaints()
{
    QFETCH(bool, wants);
    const QTemporaryDir folder;
    QTimer::singleShot(200, this, [&] {
        auto *dialog = qobject_cast<QPrintDialog *>(QApplication::activeModalWidget());
        QVERIFY(dialog);
        QCOMPARE(dialog->printer()->docName(), u"Plot"_s);
        dialog->findChild<QLineEdit *>(u"filename"_s)->setText(folder.filePath(u"plot.pdf"_s));
        if (wants)
            dialog->accept();
        else
            dialog->reject();
    });
    int painted = 0;
    Host::BoxQuestions().print(u"Plot"_s, [&](QPrinter &printer) {
        ++painted;
        QCOMPARE(printer.outputFileName(), folder.filePath(u"plot.pdf"_s));
    });
    QCOMPARE(painted, wants ? 1 : 0);
}

int main(int argc, char *argv[])
{
    const Xvfb screen;
    QApplication application(argc, argv);
    FileQuestionsTest test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_filequestions.moc"
