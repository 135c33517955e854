// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/host/support/includerules.h"

#include <QDirIterator>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

class IncludesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theProgramKeepsToItsRooms();
    void arrowsPointDown_data();
    void arrowsPointDown();
    void aPlantedLineIsFound_data();
    void aPlantedLineIsFound();
    void whatIsAllowedIsNotFound_data();
    void whatIsAllowedIsNotFound();
    void aFileHas300LinesAtMost();
};

void IncludesTest::theProgramKeepsToItsRooms()
{
    const QDir top(QStringLiteral(SOURCES));
    QDirIterator files(top.filePath(u"host"_s), {u"*.cpp"_s, u"*.h"_s}, QDir::Files,
                       QDirIterator::Subdirectories);
    QStringList found;
    int count = 0;
    while (files.hasNext()) {
        QFile file(files.next());
        QVERIFY(file.open(QFile::ReadOnly));
        found +=
            IncludeRules::problems(top.relativeFilePath(file.fileName()), QString::fromUtf8(file.readAll()));
        ++count;
    }
    // Starts the library's window itself until the program has a window of its own.
    found.removeIf([](const QString &line) { return line.startsWith(u"host/app/startup.cpp: gui/"_s); });
    QCOMPARE(found.join(u'\n'), QString());
    QVERIFY(count > 20);
}

void IncludesTest::arrowsPointDown_data()
{
    QTest::addColumn<QString>("from");
    QTest::addColumn<QStringList>("downTo");
    const QStringList lowest{u"data"_s, u"safety"_s, u"preferences"_s};
    const QStringList middle{u"statistics"_s, u"exchange"_s, u"demo"_s};
    QTest::newRow("main") << u"main"_s << lowest + middle + QStringList{u"window"_s, u"app"_s};
    QTest::newRow("app") << u"app"_s << lowest + middle + QStringList{u"window"_s, u"app"_s};
    QTest::newRow("window") << u"window"_s << lowest + middle + QStringList{u"window"_s};
    for (const QString &room : middle)
        QTest::newRow(qPrintable(room)) << room << lowest + QStringList{room};
    QTest::newRow("data") << u"data"_s << QStringList{u"data"_s};
    QTest::newRow("safety") << u"safety"_s << QStringList{u"safety"_s, u"data"_s};
    QTest::newRow("preferences") << u"preferences"_s << QStringList{u"preferences"_s};
}

void IncludesTest::arrowsPointDown()
{
    QFETCH(QString, from);
    QFETCH(QStringList, downTo);
    const QString file = from == u"main"_s ? u"host/main.cpp"_s : u"host/%1/x.cpp"_s.arg(from);
    for (const QString &to : {u"app"_s, u"window"_s, u"statistics"_s, u"exchange"_s, u"demo"_s, u"data"_s,
                              u"safety"_s, u"preferences"_s, u"cellar"_s}) {
        for (const QString &line : {u"#include \"host/%1/x.h\"\n"_s, u"#include <host/%1/x.h>\n"_s,
                                    u" # include \"host/%1/inner/x.h\"\n"_s}) {
            const bool isFound = !IncludeRules::problems(file, line.arg(to)).isEmpty();
            QVERIFY2(isFound != downTo.contains(to), qPrintable(from + u" to "_s + to));
        }
    }
}

void IncludesTest::aPlantedLineIsFound_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("header");
    const auto plant = [](const QString &file, const QStringList &headers) {
        for (const QString &header : headers)
            QTest::newRow(qPrintable(file + u": "_s + header)) << file << header;
    };
    plant(u"host/app/startup.cpp"_s,
          {u"<QMessageBox>"_s, u"<QDialog>"_s, u"<QFileDialog>"_s, u"<QInputDialog>"_s, u"<QErrorMessage>"_s,
           u"<QProgressDialog>"_s, u"<QPrintDialog>"_s, u"<QPrintPreviewDialog>"_s, u"<QWizard>"_s,
           u"<QDialogButtonBox>"_s, u"<QtWidgets/QMessageBox>"_s, u"<qmessagebox.h>"_s, u"<QtWidgets>"_s,
           u"<QtWidgets/QtWidgets>"_s, u"\"ui_form.h\""_s});
    plant(u"host/statistics/figures.cpp"_s,
          {u"<QChart>"_s, u"<QChartView>"_s, u"<QLineSeries>"_s, u"<QValueAxis>"_s, u"<QtCharts>"_s,
           u"<QtCharts/QChart>"_s, u"<QLegend>"_s, u"<QBarSet>"_s, u"<QPieSlice>"_s, u"<QAbstractAxis>"_s});
    plant(u"host/window/sidepanel.cpp"_s,
          {u"\"gui/voltbokgui.h\""_s, u"<plugin/rotavexplugin.h>"_s, u"\"records/batterywidget.h\""_s,
           u"\"sidepanel.h\""_s, u"\"window/sidepanel.h\""_s, u"\"../safety/backups.h\""_s,
           u"\"host/main.h\""_s});
    plant(u"host/window/mainwindow.cpp"_s,
          {u"\"records/batterywidget.h\""_s, u"\"storage/dataprocessor.h\""_s});
    plant(u"host/data/cataloguefile.cpp"_s, {u"\"gui/voltbokgui.h\""_s});
    plant(u"host/data/measured.cpp"_s, {u"\"storage/dataprocessor.h\""_s, u"<storage/dataprocessor.h>"_s});
    plant(u"host/window/mainwindowhelper.cpp"_s, {u"\"gui/voltbokgui.h\""_s});
}

void IncludesTest::aPlantedLineIsFound()
{
    QFETCH(QString, file);
    QFETCH(QString, header);
    const QStringList found = IncludeRules::problems(file, u"#pragma once\n\t#  include "_s + header + u'\n');
    QCOMPARE(found.size(), 1);
    QVERIFY2(found.first().startsWith(file + u": "_s + header.mid(1, header.size() - 2)),
             qPrintable(found.first()));
}

void IncludesTest::whatIsAllowedIsNotFound_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("headers");
    QTest::newRow("boxes and charts of the window")
        << u"host/window/plots.cpp"_s << u"<QMessageBox> <QDialog> <QChartView> <QtCharts/QLineSeries>"_s;
    QTest::newRow("the main window") << u"host/window/mainwindow.h"_s << u"\"gui/voltbokgui.h\""_s;
    QTest::newRow("the languages") << u"host/preferences/languages.cpp"_s
                                   << u"\"plugin/rotavexplugin.h\" \"gui/voltbokgui.h\""_s;
    QTest::newRow("the catalogue's file")
        << u"host/data/cataloguefile.cpp"_s << u"\"records/batterywidget.h\" \"storage/dataprocessor.h\""_s;
    QTest::newRow("Qt, the system, what was generated")
        << u"host/safety/backups.cpp"_s << u"<QFile> <QtGlobal> <memory> <sys/file.h> \"backups.moc\""_s;
    QTest::newRow("a form") << u"host/window/panel.cpp"_s << u"\"ui_panel.h\""_s;
    QTest::newRow("a command") << u"host/app/commands/list.cpp"_s << u"\"host/data/catalogue.h\""_s;
}

void IncludesTest::whatIsAllowedIsNotFound()
{
    QFETCH(QString, file);
    QFETCH(QString, headers);
    QString text = u"// #include \"host/nowhere/x.h\"\n"_s;
    for (const QString &header : headers.split(u' '))
        text += u"#include "_s + header + u'\n';
    QCOMPARE(IncludeRules::problems(file, text), QStringList());
}

void IncludesTest::aFileHas300LinesAtMost()
{
    QCOMPARE(IncludeRules::problems(u"host/app/x.cpp"_s, QString(300, u'\n')), QStringList());
    QCOMPARE(IncludeRules::problems(u"host/app/x.cpp"_s, QString(301, u'\n')).size(), 1);
}

QTEST_GUILESS_MAIN(IncludesTest)
#include "tst_includes.moc"
