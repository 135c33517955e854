// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QMap>
#include <QPair>
#include <QProcess>
#include <QString>
#include <QTemporaryDir>
#include <QTest>
#include <QXmlStreamReader>

/** What Gnumeric, a spreadsheet that is not ours, reads from a file. */
namespace Spreadsheet {

using namespace Qt::Literals::StringLiterals;

struct Cell
{
    QString text;
    bool isNumber = false;

    bool operator==(const Cell &other) const { return text == other.text && isNumber == other.isNumber; }
};

struct Sheet
{
    QMap<QPair<int, int>, Cell> cells; ///< by row and column; those that hold something
    QString filter;                    ///< "A1:H34"
    QString unfrozen;                  ///< the first cell that scrolls, such as "A2"
    int links = 0;
    int formulas = 0;

    QString text(int row, int column) const { return cells.value({row, column}).text; }
};

/** A system locale that a machine need not have. */
class GermanLocale
{
public:
    GermanLocale()
    {
        const int failed = QProcess::execute(
            u"localedef"_s, {u"-i"_s, u"de_DE"_s, u"-f"_s, u"UTF-8"_s, m_folder.filePath(name())});
        if (failed)
            qFatal("localedef cannot make a German locale; on Debian it is in the package locales");
    }

    static QString name() { return u"de_DE.UTF-8"_s; }
    QString path() const { return m_folder.path(); }

private:
    QTemporaryDir m_folder;
};

inline Sheet readSheet(QXmlStreamReader &xml, QString *name)
{
    Sheet sheet;
    while (!xml.atEnd()) {
        xml.readNext();
        if (xml.isEndElement() && xml.name() == "Sheet"_L1)
            break;
        if (!xml.isStartElement())
            continue;
        const QXmlStreamAttributes attributes = xml.attributes();
        if (xml.name() == "Name"_L1 && name->isEmpty()) {
            *name = xml.readElementText();
        } else if (xml.name() == "Cell"_L1) {
            const QPair<int, int> place(attributes.value("Row"_L1).toInt(),
                                        attributes.value("Col"_L1).toInt());
            const QStringView type = attributes.value("ValueType"_L1);
            sheet.formulas += type.isEmpty() ? 1 : 0; // anything else has the type of its value
            sheet.cells.insert(place, {xml.readElementText(), type == "40"_L1});
        } else if (xml.name() == "Filter"_L1) {
            sheet.filter = attributes.value("Area"_L1).toString();
        } else if (xml.name() == "FreezePanes"_L1) {
            sheet.unfrozen = attributes.value("UnfrozenTopLeft"_L1).toString();
        } else if (xml.name() == "HyperLink"_L1) {
            ++sheet.links;
        }
    }
    return sheet;
}

/** All sheets of a file by their names, which are also told in their order. @param options of the
 * spreadsheet's converter. */
inline QMap<QString, Sheet>
read(const QString &path, QStringList *names, const QStringList &options = {},
     const QProcessEnvironment &environment = QProcessEnvironment::systemEnvironment())
{
    const QTemporaryDir folder;
    const QString read = folder.filePath(u"read.xml"_s);
    QProcess converter;
    converter.setProcessEnvironment(environment);
    converter.start(u"ssconvert"_s, options + QStringList{u"-T"_s, u"Gnumeric_XmlIO:sax:0"_s, path, read});
    QMap<QString, Sheet> sheets;
    if (!converter.waitForFinished(120'000) || converter.exitCode() != 0) {
        QTest::qFail("Gnumeric's ssconvert cannot read the file", __FILE__, __LINE__);
        return sheets;
    }
    QFile file(read);
    if (!file.open(QFile::ReadOnly))
        return sheets;
    QXmlStreamReader xml(&file);
    while (!xml.atEnd()) {
        xml.readNext();
        if (!xml.isStartElement() || xml.name() != "Sheet"_L1)
            continue;
        QString name;
        const Sheet sheet = readSheet(xml, &name);
        names->append(name);
        sheets.insert(name, sheet);
    }
    return sheets;
}

} // namespace Spreadsheet
