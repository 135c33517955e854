// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QHash>
#include <QRegularExpression>
#include <QStringList>

using namespace Qt::Literals::StringLiterals;

/** Which file of the program may include what. A file is named from the top of the source tree. */
namespace IncludeRules {

inline constexpr int MostLines = 300;

/** "window" for host/window/x.cpp, "main" for host/main.cpp. */
inline QString room(const QString &file)
{
    const QStringList parts = file.split(u'/');
    return parts.size() > 2 ? parts.at(1) : u"main"_s;
}

/** "host/window/mainwindow" for that file, whatever its ending. */
inline QString unit(const QString &file)
{
    return file.section(u'.', 0, 0);
}

/** How high a room lies; -1 for one that nobody planned. */
inline int level(const QString &room)
{
    static const QHash<QString, int> levels = {
        {u"main"_s, 4}, {u"app"_s, 3},  {u"window"_s, 2}, {u"statistics"_s, 1}, {u"exchange"_s, 1},
        {u"demo"_s, 1}, {u"data"_s, 0}, {u"safety"_s, 0}, {u"preferences"_s, 0}};
    return levels.value(room, -1);
}

inline bool mayInclude(const QString &from, const QString &to)
{
    if (from == to || (from == QLatin1StringView("safety") && to == QLatin1StringView("data")))
        return true;
    return level(from) >= 0 && level(to) >= 0 && level(from) > level(to);
}

inline bool isBox(const QString &header)
{
    static const QRegularExpression boxes(
        u"^(QtWidgets/|QtPrintSupport/)?(Q[A-Za-z]*Dialog[A-Za-z]*|QMessageBox|QErrorMessage|"
        "QWizard[A-Za-z]*|q[a-z]*dialog\\.h|qmessagebox\\.h|qerrormessage\\.h|qwizard\\.h)$|"
        "^(QtWidgets|QtPrintSupport)(/QtWidgets|/QtPrintSupport)?$"_s);
    return boxes.match(header).hasMatch();
}

inline bool isChart(const QString &header)
{
    static const QRegularExpression charts(
        u"^QtCharts(/|$)|^(QtCharts/)?(Q(Polar)?Chart(View)?|Q[A-Za-z]+Series|Q[A-Za-z]*Axis|QLegend|"
        "Q[A-Za-z]*LegendMarker|QPieSlice|QBarSet|QBoxSet|QCandlestickSet|Q[A-Za-z]+ModelMapper)$|^qchart"_s);
    return charts.match(header).hasMatch();
}

/** Why @p file may not include the library's @p header; empty where it may, or where it is none of these. */
inline QString libraryProblem(const QString &file, const QString &header)
{
    const QString folder = header.section(u'/', 0, 0);
    const QString who = unit(file);
    if (folder == QLatin1StringView("gui") || folder == QLatin1StringView("plugin")) {
        if (who != QLatin1StringView("host/window/mainwindow") &&
            who != QLatin1StringView("host/preferences/languages"))
            return u"only the main window and the languages see the library's window"_s;
    }
    if (folder == QLatin1StringView("records") || folder == QLatin1StringView("storage")) {
        if (who != QLatin1StringView("host/data/cataloguefile"))
            return u"only the catalogue's file sees the library's records"_s;
    }
    return QString();
}

/** Why @p file may not include @p header; empty where it may. */
inline QString problem(const QString &file, const QString &header, bool isQuoted)
{
    const QString from = room(file);
    const bool isWindow = from == QLatin1StringView("window");
    if (isBox(header))
        return isWindow ? QString() : u"only the window shows boxes"_s;
    if (isChart(header))
        return isWindow ? QString() : u"only the window draws charts"_s;
    const QString folder = header.section(u'/', 0, 0);
    if (QStringList{u"gui"_s, u"plugin"_s, u"records"_s, u"storage"_s}.contains(folder))
        return libraryProblem(file, header);
    if (folder == QLatin1StringView("host")) {
        if (header.count(u'/') < 2)
            return u"a header lies in a room"_s;
        const QString to = room(header);
        return mayInclude(from, to) ? QString() : from + u" does not use "_s + to;
    }
    if (!isQuoted || header.endsWith(QLatin1StringView(".moc")))
        return QString();
    if (header.startsWith(QLatin1StringView("ui_")))
        return isWindow ? QString() : u"only the window has forms"_s;
    return u"a header of ours is spelled host/room/file.h"_s;
}

/** What is wrong with a source file, a line for each. */
inline QStringList problems(const QString &file, const QString &text)
{
    QStringList found;
    const qsizetype lines = text.count(u'\n');
    if (lines > MostLines)
        found.append(u"%1: %2 lines"_s.arg(file).arg(lines));
    if (level(room(file)) < 0)
        found.append(u"%1: there is no room of that name"_s.arg(file));
    static const QRegularExpression include(u"^[ \\t]*#[ \\t]*include[ \\t]*([<\"])([^>\"\\n]+)[>\"]"_s,
                                            QRegularExpression::MultilineOption);
    for (auto match = include.globalMatch(text); match.hasNext();) {
        const QRegularExpressionMatch line = match.next();
        const QString header = line.captured(2);
        const QString wrong = problem(file, header, line.captured(1) == QLatin1StringView("\""));
        if (!wrong.isEmpty())
            found.append(u"%1: %2: %3"_s.arg(file, header, wrong));
    }
    return found;
}

} // namespace IncludeRules
