// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCoreApplication>
#include <QDomDocument>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QResource>
#include <QTemporaryDir>
#include <QTest>
#include <QTranslator>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

/**
 * A language that nobody speaks: every text of a file of translations, accented, in «brackets», and longer by
 * 40 %. It is compiled and found as every other one, so that a text that is not in the file, or stands there
 * under a wrong name, stays English.
 */
class PseudoLanguage
{
public:
    static constexpr QLatin1StringView Code{"sv"}; ///< a language without a translation

    /** @param translation a file of translations, whatever is translated in it. */
    explicit PseudoLanguage(const QString &translation)
    {
        const QString name = u"voltbok_"_s + Code;
        write(name + u".ts"_s, translated(translation));
        write(u"manual_"_s + Code + u".md"_s, "Mánúál\n");
        write(u"pseudo.qrc"_s, "<RCC><qresource prefix=\"/Resources/Translations\"><file>" + name.toUtf8() +
                                   ".qm</file></qresource><qresource prefix=\"/manual\"><file>manual_" +
                                   QString(Code).toUtf8() + ".md</file></qresource></RCC>");
        run(QStringLiteral(LRELEASE), {u"-silent"_s, path(name + u".ts"_s), u"-qm"_s, path(name + u".qm"_s)});
        run(QStringLiteral(RCC), {u"--binary"_s, path(u"pseudo.qrc"_s), u"-o"_s, path(u"pseudo.rcc"_s)});
        QVERIFY(QResource::registerResource(path(u"pseudo.rcc"_s)));
    }
    ~PseudoLanguage() { QResource::unregisterResource(path(u"pseudo.rcc"_s)); }
    Q_DISABLE_COPY_MOVE(PseudoLanguage)

    /** How a text reads in it. */
    static QString said(const QString &source)
    {
        static const QRegularExpression readOut(u"^[\\d.-]+$"_s);
        if (readOut.match(source).hasMatch()) // a mask, or what one must let in
            return source;
        static const QRegularExpression kept(u"%L?n|%\\d|\\(\\*[^)]*\\)"_s);
        QString text;
        qsizetype from = 0;
        QRegularExpressionMatchIterator matches = kept.globalMatch(source);
        while (matches.hasNext()) {
            const QRegularExpressionMatch match = matches.next();
            text += accented(source.mid(from, match.capturedStart() - from)) + match.captured();
            from = match.capturedEnd();
        }
        text += accented(source.mid(from));
        const qsizetype more = std::max<qsizetype>(source.size() * 2 / 5 - 2, 0); // the brackets count
        for (qsizetype i = 0; i < more; ++i)
            text += i % 7 == 0 ? u' ' : u'ö';
        const QString before = text.startsWith(u' ') ? u" «"_s : u"«"_s;
        return before + text.trimmed() + u'»';
    }

    /** The words of a text that are not in this language, which has no plain vowels. */
    static QStringList leftOver(QString text)
    {
        // Units, the dates of the cards, endings of files and names; and what the logbook's own form fixes.
        static const QRegularExpression ours(
            u"(?<![A-Za-z])(mAh|[AC]|Mon|Tue|Wed|Thu|Fri|Sat|Sun|Jan|Feb|Mar|Apr|May|Jun|Jul|Aug|Sep|Oct|Nov|"
            u"Dec|"
            "Voltbok|English|MyLocation)(?![A-Za-z])|\\*\\.\\w+|Rotavex 15.7.0 64-bit|/[\\w/.-]+"_s);
        text.remove(ours);
        static const QRegularExpression word(u"[A-Za-z]*[aeiouAEIOU][A-Za-z]*"_s);
        QStringList words;
        QRegularExpressionMatchIterator matches = word.globalMatch(text);
        while (matches.hasNext())
            words.append(matches.next().captured());
        return words;
    }

private:
    static QString accented(QString text)
    {
        static const QString plain = u"aeiouyAEIOUYcnsz"_s;
        static const QString foreign = u"áéíóúýÁÉÍÓÚÝčňšž"_s;
        for (QChar &character : text) {
            if (const qsizetype place = plain.indexOf(character); place >= 0)
                character = foreign.at(place);
        }
        return text;
    }

    static QByteArray translated(const QString &translation)
    {
        QFile file(translation);
        QDomDocument document;
        if (!file.open(QFile::ReadOnly) || !document.setContent(file.readAll()))
            qFatal("The translation cannot be read.");
        document.documentElement().setAttribute(u"language"_s, Code);
        const QDomNodeList messages = document.elementsByTagName(u"message"_s);
        for (int i = 0; i < messages.size(); ++i) {
            const QDomElement message = messages.at(i).toElement();
            const QString text = said(message.firstChildElement(u"source"_s).text());
            const QDomElement old = message.firstChildElement(u"translation"_s);
            QDomElement element = document.createElement(u"translation"_s);
            if (message.hasAttribute(u"numerus"_s)) {
                for (int form = 0; form < 2; ++form) {
                    QDomElement plural = document.createElement(u"numerusform"_s);
                    plural.appendChild(document.createTextNode(text));
                    element.appendChild(plural);
                }
            } else {
                element.appendChild(document.createTextNode(text));
            }
            old.parentNode().replaceChild(element, old);
        }
        return document.toByteArray(-1);
    }

    QString path(const QString &name) const { return m_folder.filePath(name); }

    void write(const QString &name, const QByteArray &bytes) const
    {
        QFile file(path(name));
        QVERIFY(file.open(QFile::WriteOnly));
        file.write(bytes);
    }

    static void run(const QString &program, const QStringList &arguments)
    {
        QProcess process;
        process.start(program, arguments);
        QVERIFY(process.waitForFinished());
        QVERIFY2(process.exitCode() == 0, process.readAllStandardError().constData());
    }

    QTemporaryDir m_folder;
};

/** The same for what Qt itself says; its texts are others' affair, but must not be taken for ours. */
class PseudoQt final : public QTranslator
{
public:
    PseudoQt() { QCoreApplication::installTranslator(this); }
    bool isEmpty() const override { return false; }
    QString translate(const char *context, const char *source, const char *, int) const override
    {
        const bool isText = context[0] == 'Q' && qstrcmp(context, "QGuiApplication") != 0 &&
                            qstrcmp(context, "QShortcut") != 0;
        return isText ? PseudoLanguage::said(QString::fromUtf8(source)) : QString();
    }
};
