// SPDX-License-Identifier: GPL-3.0-or-later
// What translators hand in: each finished file of translations, text by text.
#include <QDir>
#include <QDirIterator>
#include <QDomDocument>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QSet>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

/** A text with what it became: one form, or as many as the language has plurals. */
struct Message
{
    QString context;
    QString source;
    QString comment;
    QString type; ///< empty where it is finished
    bool isNumerus = false;
    QStringList forms;

    QString key() const { return QStringList{context, source, comment}.join(u" | "); }
};

QString fileOf(const QString &language)
{
    return QStringLiteral(TRANSLATIONS) + u"/voltbok_"_s + language + u".ts"_s;
}

QStringList formsOf(const QDomElement &translation)
{
    QStringList forms;
    for (QDomElement form = translation.firstChildElement(u"numerusform"_s); !form.isNull();
         form = form.nextSiblingElement(u"numerusform"_s))
        forms.append(form.text());
    return forms.isEmpty() ? QStringList{translation.text()} : forms;
}

QList<Message> messagesIn(const QString &path)
{
    QList<Message> messages;
    QFile file(path);
    QDomDocument document;
    if (!file.open(QFile::ReadOnly) || !document.setContent(file.readAll()))
        return messages;
    const QDomNodeList all = document.elementsByTagName(u"message"_s);
    for (int i = 0; i < all.size(); ++i) {
        const QDomElement element = all.at(i).toElement();
        const QDomElement translation = element.firstChildElement(u"translation"_s);
        messages.append({element.parentNode().firstChildElement(u"name"_s).text(),
                         element.firstChildElement(u"source"_s).text(),
                         element.firstChildElement(u"comment"_s).text(), translation.attribute(u"type"_s),
                         element.hasAttribute(u"numerus"_s), formsOf(translation)});
    }
    return messages;
}

QStringList found(const QString &text, const QString &pattern)
{
    QStringList all;
    QRegularExpressionMatchIterator matches = QRegularExpression(pattern).globalMatch(text);
    while (matches.hasNext())
        all.append(matches.next().captured());
    all.sort();
    return all;
}

/** The one thing that a form speaks of alone may go unnumbered: "Delete this flight?" */
bool mayLeaveNumberOut(const Message &message, qsizetype form, const QString &language)
{
    return message.forms.size() > 1 && form == 0 &&
           language != QLatin1StringView("fr"); // there 0 is singular
}

QString endOf(const QString &text)
{
    static const QRegularExpression end(u"[…:]?\\s*$"_s);
    return end.match(text).captured().remove(QChar(0x00A0)).remove(QChar(0x202F));
}

/** What must be the same in both: what the program puts in, and what it or Qt reads out of a text. */
QString difference(const Message &message, qsizetype form, const QString &language)
{
    const QString source = message.source;
    const QString text = message.forms.at(form);
    if (found(source, u"%\\d"_s) != found(text, u"%\\d"_s))
        return u"places"_s;
    const QString number = u"%L?n"_s;
    if (found(source, number) != found(text, number) &&
        !(found(text, number).isEmpty() && mayLeaveNumberOut(message, form, language)))
        return u"number"_s;
    if (found(source, u"&\\w"_s).size() != found(text, u"&[\\p{L}\\d]"_s).size())
        return u"mnemonic"_s;
    if (found(source, u"\\(\\*[^)]*\\)"_s) != found(text, u"\\(\\*[^)]*\\)"_s))
        return u"endings of files"_s;
    if (endOf(source) != endOf(text) || source.startsWith(u' ') != text.startsWith(u' '))
        return u"beginning or end"_s;
    if (source.count(u'\n') != text.count(u'\n'))
        return u"lines"_s;
    static const QRegularExpression read(u"^[\\d.-]+$"_s);
    if (read.match(source).hasMatch() && source != text)
        return u"mask or number"_s;
    return QString();
}

QByteArray everySource()
{
    QByteArray text;
    for (const QString &folder : {u"gui"_s, u"records"_s, u"storage"_s, u"plugin"_s, u"host"_s}) {
        QDirIterator files(QStringLiteral(SOURCES) + u'/' + folder, {u"*.cpp"_s, u"*.h"_s, u"*.ui"_s},
                           QDir::Files, QDirIterator::Subdirectories);
        while (files.hasNext()) {
            QFile file(files.next());
            if (file.open(QFile::ReadOnly))
                text += file.readAll() + '\n';
        }
    }
    return text;
}

} // namespace

class TranslationsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void nothingIsLeftToTranslate_data() { addLanguages(); }
    void nothingIsLeftToTranslate();
    void placesMarksAndMasksAreThoseOfTheSource_data() { addLanguages(); }
    void placesMarksAndMasksAreThoseOfTheSource();
    void everyTextOfTheSourcesIsThere_data() { addLanguages(); }
    void everyTextOfTheSourcesIsThere();
    void everyContextIsLookedUpAtRunTime_data() { addLanguages(); }
    void everyContextIsLookedUpAtRunTime();
    void whatDiffersIsSeen();

private:
    static void addLanguages();
};

/** All that users can choose. */
void TranslationsTest::addLanguages()
{
    QTest::addColumn<QString>("language");
    const QStringList languages = QStringLiteral(LANGUAGES).split(u' ');
    for (const QString &language : languages)
        QTest::addRow("%s", qPrintable(language)) << language;
}

void TranslationsTest::nothingIsLeftToTranslate()
{
    QFETCH(const QString, language);
    const QList<Message> messages = messagesIn(fileOf(language));
    QVERIFY(!messages.isEmpty());
    QStringList unfinished;
    for (const Message &message : messages) {
        const bool isEmpty = message.forms.contains(QString()) && !message.source.isEmpty();
        if (!message.type.isEmpty() || isEmpty)
            unfinished.append(message.key());
    }
    QVERIFY2(unfinished.isEmpty(), qPrintable(unfinished.join(u'\n')));
}

void TranslationsTest::placesMarksAndMasksAreThoseOfTheSource()
{
    QFETCH(const QString, language);
    const QList<Message> messages = messagesIn(fileOf(language));
    QVERIFY(!messages.isEmpty());
    QStringList different;
    for (const Message &message : messages) {
        for (qsizetype form = 0; message.type.isEmpty() && form < message.forms.size(); ++form) {
            const QString what = difference(message, form, language);
            if (!what.isEmpty())
                different.append(what + u": "_s + message.key() + u" -> "_s + message.forms.at(form));
        }
    }
    QVERIFY2(different.isEmpty(), qPrintable(different.join(u'\n')));
}

/** The file is what lupdate would make of the sources of today. */
void TranslationsTest::everyTextOfTheSourcesIsThere()
{
    QFETCH(const QString, language);
    const QTemporaryDir folder;
    const QString copy = folder.filePath(u"voltbok_"_s + language + u".ts"_s);
    QVERIFY(QFile::copy(fileOf(language), copy));
    QStringList arguments = QStringLiteral(LUPDATE_OPTIONS).split(u' ');
    if (language == QLatin1StringView("en"))
        arguments.append(u"-pluralonly"_s);
    QProcess lupdate;
    lupdate.start(QStringLiteral(LUPDATE), arguments + QStringList{u"-ts"_s, copy});
    QVERIFY(lupdate.waitForFinished());
    QCOMPARE(lupdate.exitCode(), 0);

    const auto keysIn = [](const QString &path) {
        QSet<QString> keys;
        const QList<Message> messages = messagesIn(path);
        for (const Message &message : messages)
            keys.insert(message.key());
        return keys;
    };
    const QSet<QString> now = keysIn(fileOf(language));
    const QSet<QString> then = keysIn(copy);
    const QStringList missing = (then - now).values();
    const QStringList gone = (now - then).values();
    QVERIFY2(missing.isEmpty(), qPrintable(u"missing:\n"_s + missing.join(u'\n')));
    QVERIFY2(gone.isEmpty(), qPrintable(u"gone:\n"_s + gone.join(u'\n')));
}

/** lupdate guesses contexts; a class is looked up under its whole name, everything else as it is written. */
void TranslationsTest::everyContextIsLookedUpAtRunTime()
{
    QFETCH(const QString, language);
    const QString sources = QString::fromUtf8(everySource());
    QSet<QString> known;
    const auto addAll = [&](const QString &pattern, const QString &before) {
        QRegularExpressionMatchIterator matches = QRegularExpression(pattern).globalMatch(sources);
        while (matches.hasNext())
            known.insert(before + matches.next().captured(1));
    };
    addAll(u"Q_DECLARE_TR_FUNCTIONS\\(([\\w:]+)\\)"_s, {});
    addAll(u"(?:translate|QT_TRANSLATE_NOOP3?|QT_TRANSLATE_N_NOOP)\\(\\s*\"([\\w:]+)\""_s, {});
    addAll(u"<class>(\\w+)</class>"_s, {});
    addAll(u"class (\\w+)(?: final)? : public [^{;]*\\{\\s*Q_OBJECT"_s, u"Host::"_s);
    addAll(u"\nclass (?:VOLTBOK_EXPORT )?(\\w+) : public [^{;]*\\{\\s*Q_OBJECT"_s, {});
    QStringList unknown;
    const QList<Message> messages = messagesIn(fileOf(language));
    for (const Message &message : messages) {
        if (!known.contains(message.context) && !unknown.contains(message.context))
            unknown.append(message.context);
    }
    QVERIFY(!messages.isEmpty());
    QVERIFY2(unknown.isEmpty(), qPrintable(unknown.join(u'\n')));
}

/** The eye of this test. */
void TranslationsTest::whatDiffersIsSeen()
{
    const auto seen = [](const QString &source, const QString &text) {
        return difference({u"X"_s, source, {}, {}, false, {text}}, 0, u"de"_s);
    };
    QCOMPARE(seen(u"“%1”: %2"_s, u"„%1“: %2"_s), QString());
    QCOMPARE(seen(u"&Save as PDF…"_s, u"Als PDF &speichern…"_s), QString());
    QCOMPARE(seen(u"“%1”: %2"_s, u"„%1“"_s), u"places"_s);
    QCOMPARE(seen(u"%n days"_s, u"Tage"_s), u"number"_s);
    QCOMPARE(seen(u"%Ln days"_s, u"%n Tage"_s), u"number"_s);
    QCOMPARE(seen(u"&Save"_s, u"Speichern"_s), u"mnemonic"_s);
    QCOMPARE(seen(u"PDF (*.pdf)"_s, u"PDF (*.PDF)"_s), u"endings of files"_s);
    QCOMPARE(seen(u"Save…"_s, u"Speichern..."_s), u"beginning or end"_s);
    QCOMPARE(seen(u" days"_s, u"Tage"_s), u"beginning or end"_s);
    QCOMPARE(seen(u"a\nb"_s, u"a b"_s), u"lines"_s);
    QCOMPARE(seen(u"0.0"_s, u"0,0"_s), u"mask or number"_s);
}

QTEST_GUILESS_MAIN(TranslationsTest)
#include "tst_translations.moc"
