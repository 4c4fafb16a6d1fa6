// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/ppds/family.h"
#include "tests/support/paths.h"

#include <QDir>
#include <QFile>
#include <QHash>
#include <QProcess>
#include <QRegularExpression>
#include <QSet>
#include <QTest>

#include <algorithm>
#include <clocale>
#include <span>
#include <thread>

using namespace Qt::StringLiterals;

Q_DECLARE_METATYPE(FamilyModel)

namespace {

struct ServedOption
{
    QString keyword;
    QStringList choices;
    QString standard;
};

const QStringList falseTrue{u"False"_s, u"True"_s};

QStringList numbers(int first, int last)
{
    QStringList list;
    for (int i = first; i <= last; ++i)
        list.append(QString::number(i));
    return list;
}

QList<ServedOption> printModeOptions(const FamilyModel &model)
{
    QStringList modes{u"Normal"_s, u"Private"_s, u"Proof"_s, u"Hold"_s};
    if (!model.privatePrinting)
        modes.removeAll(u"Private"_s);
    QList<ServedOption> list{
        {u"PrintMode"_s, modes, u"Normal"_s},
        {u"JobRetention"_s, {u"None"_s, u"Day"_s, u"Week"_s}, u"None"_s},
        {u"DistinguishThinLines"_s, falseTrue, u"True"_s},
        {u"BlankPage"_s, falseTrue, u"False"_s},
        {u"DeptCode"_s, falseTrue, u"False"_s},
    };
    for (int digit = 1; digit <= 5; ++digit) {
        list.append({u"DCDigit"_s + QString::number(digit), numbers(0, 9), u"0"_s});
        if (model.privatePrinting)
            list.append({u"DINDigit"_s + QString::number(digit), numbers(0, 9), u"0"_s});
    }
    return list;
}

QList<ServedOption> colorOptions(const FamilyModel &model)
{
    QStringList images{u"General"_s, u"Photo"_s, u"Presentation"_s, u"LineArt"_s};
    if (model.advanced)
        images.append(u"Advanced"_s);
    QList<ServedOption> list{
        {u"ColorType"_s, {u"Auto"_s, u"Color"_s, u"Mono"_s, u"Twin"_s}, u"Auto"_s},
        {u"Halftone"_s, {u"Auto"_s, u"Detail"_s, u"Smooth"_s}, u"Auto"_s},
        {u"TonerSave"_s, falseTrue, u"False"_s},
        {u"ImageType"_s, images, u"General"_s},
        {u"BlackOverPrint"_s, falseTrue, u"False"_s},
        {u"PureBlackGray"_s, {u"Auto"_s, u"BlackGray"_s, u"Black"_s, u"Off"_s}, u"Auto"_s},
    };
    if (model.resolution)
        list.append({u"Resolution"_s, {u"600dpi"_s, u"1200dpi"_s}, u"600dpi"_s});
    QStringList levels{u"ColorBalanceCyan"_s,  u"ColorBalanceMagenta"_s, u"ColorBalanceYellow"_s,
                       u"ColorBalanceBlack"_s, u"SharpnessVRN"_s,        u"BrightnessVRN"_s,
                       u"ContrastVRN"_s,       u"SaturationVRN"_s};
    if (model.background)
        levels.append(u"BackgroundAdjustmentVRN"_s);
    for (const QString &level : levels)
        list.append({level, numbers(-5, 5), u"0"_s});
    return list;
}

// All localised texts in PPD order, as returned by libcups for a locale ("en": the PPD's own texts). libcups
// keeps its language for the lifetime of a thread, so each call uses a new thread.
QStringList textsOf(const FamilyModel &model, const char *locale)
{
    QStringList texts;
    qputenv("LC_ALL", locale);
    std::thread([&] {
        const PpdFile ppd = openFamilyPpd(model);
        if (!ppd)
            return;
        ppdLocalize(ppd.get());
        for (const ppd_group_t &group : std::span(ppd->groups, size_t(ppd->num_groups))) {
            texts.append(QString::fromUtf8(group.text));
            for (const ppd_option_t &option : std::span(group.options, size_t(group.num_options))) {
                // No program shows the second name of PageSize, and ppdc does not translate it.
                if (qstrcmp(option.keyword, "PageRegion") == 0)
                    continue;
                texts.append(QString::fromUtf8(option.text));
                for (const ppd_choice_t &choice : std::span(option.choices, size_t(option.num_choices)))
                    texts.append(QString::fromUtf8(choice.text));
            }
        }
    }).join();
    return texts;
}

QHash<QString, QString> catalog(const QString &language)
{
    QFile file(sourcePath("/ppds/po/%1.po").arg(language));
    QHash<QString, QString> entries;
    if (!file.open(QIODevice::ReadOnly))
        return entries;
    static const QRegularExpression entry(u"^msgid \"(.+)\"\\nmsgstr \"(.+)\"$"_s,
                                          QRegularExpression::MultilineOption);
    const QString text = QString::fromUtf8(file.readAll());
    for (const QRegularExpressionMatch &match : entry.globalMatch(text))
        entries.insert(match.captured(1), match.captured(2));
    return entries;
}

bool hasLetter(const QString &text)
{
    return std::any_of(text.cbegin(), text.cend(), [](QChar c) { return c.isLetter(); });
}

} // namespace

class FamilyPpdsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void conforms_data() { models(); }
    void conforms();
    void offersWhatThePanelsServe_data() { models(); }
    void offersWhatThePanelsServe();
    void namesDiffer();
    void isTranslated_data();
    void isTranslated();
    void catalogsHoldNothingStale();

private:
    void models();
};

void FamilyPpdsTest::initTestCase()
{
    // libcups reads the language from the environment only if the process has set no locale.
    std::setlocale(LC_ALL, "C");
}

void FamilyPpdsTest::models()
{
    QTest::addColumn<FamilyModel>("model");
    for (const FamilyModel &model : family)
        QTest::newRow(model.file) << model;
}

void FamilyPpdsTest::conforms()
{
    QFETCH(FamilyModel, model);
    QProcess tester;
    tester.start(u"cupstestppd"_s, {u"-v"_s, familyPath(model)});
    QVERIFY2(tester.waitForFinished(), qPrintable(tester.errorString()));
    const QByteArray report = tester.readAllStandardOutput();
    QVERIFY2(tester.exitCode() == 0 && !report.contains("WARN"), report.constData());
}

void FamilyPpdsTest::offersWhatThePanelsServe()
{
    QFETCH(FamilyModel, model);
    const PpdFile ppd = openFamilyPpd(model);
    QVERIFY(ppd);
    QCOMPARE(ppd->modelname, model.modelName);
    QCOMPARE(ppd->manufacturer, "KELMAR");
    const ppd_attr_t *version = ppdFindAttr(ppd.get(), "FileVersion", nullptr);
    QVERIFY(version && QByteArray(version->value) == "1.4");
    QCOMPARE(ppdFindOption(ppd.get(), "DINDigit1") != nullptr, model.privatePrinting);
    QCOMPARE(ppdFindOption(ppd.get(), "Resolution") != nullptr, model.resolution);
    QCOMPARE(ppdFindOption(ppd.get(), "BackgroundAdjustmentVRN") != nullptr, model.background);
    for (const ServedOption &served : printModeOptions(model) + colorOptions(model)) {
        const ppd_option_t *option = ppdFindOption(ppd.get(), served.keyword.toLatin1().constData());
        QVERIFY2(option, qPrintable(served.keyword));
        QCOMPARE(option->ui, served.choices == falseTrue ? PPD_UI_BOOLEAN : PPD_UI_PICKONE);
        QCOMPARE(QString::fromLatin1(option->defchoice), served.standard);
        QStringList choices;
        for (const ppd_choice_t &choice : std::span(option->choices, size_t(option->num_choices))) {
            choices.append(QString::fromLatin1(choice.choice));
            QVERIFY2(choice.code && *choice.code, qPrintable(served.keyword + u' ' + choices.last()));
        }
        QCOMPARE(choices, served.choices);
    }
}

void FamilyPpdsTest::namesDiffer()
{
    QSet<QByteArray> fileNames;
    QSet<QByteArray> shortNames;
    for (const FamilyModel &model : family) {
        const PpdFile ppd = openFamilyPpd(model);
        QVERIFY(ppd);
        fileNames.insert(ppd->pcfilename);
        shortNames.insert(ppd->shortnickname);
        QCOMPARE(QByteArray(ppd->pcfilename).toLower(), QByteArray(model.file) + ".ppd");
        QVERIFY2(qstrlen(model.file) <= 8, model.file);
    }
    // Each built model must be in the table, so that it is tested.
    QCOMPARE(QDir(QFileInfo(familyPath(family.front())).path()).entryList({u"*.ppd"_s}).size(),
             qsizetype(family.size()));
    QCOMPARE(fileNames.size(), qsizetype(family.size()));
    QCOMPARE(shortNames.size(), qsizetype(family.size()));
}

void FamilyPpdsTest::isTranslated_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QByteArray>("locale");
    QTest::newRow("German") << u"de"_s << QByteArray("de_DE.UTF-8");
    QTest::newRow("French of Canada") << u"fr"_s << QByteArray("fr_CA.UTF-8");
    QTest::newRow("Japanese") << u"ja"_s << QByteArray("ja_JP.UTF-8");
    QTest::newRow("Spanish of Mexico") << u"es"_s << QByteArray("es_MX.UTF-8");
    QTest::newRow("Italian") << u"it"_s << QByteArray("it_IT.UTF-8");
}

void FamilyPpdsTest::isTranslated()
{
    QFETCH(QString, language);
    QFETCH(QByteArray, locale);
    const QHash<QString, QString> entries = catalog(language);
    QVERIFY(!entries.isEmpty());
    for (const FamilyModel &model : family) {
        const QStringList english = textsOf(model, "en");
        const QStringList localized = textsOf(model, locale.constData());
        QVERIFY(!english.isEmpty());
        QCOMPARE(localized.size(), english.size());
        for (qsizetype i = 0; i < english.size(); ++i) {
            // Plain numbers are not translated. Texts truncated to libcups's field sizes are reported as a
            // difference.
            const QString expected = hasLetter(english[i]) ? entries.value(english[i]) : english[i];
            QVERIFY2(!expected.isEmpty(), qPrintable(u"no %1 text for \"%2\""_s.arg(language, english[i])));
            QCOMPARE(localized[i], expected);
        }
    }
}

void FamilyPpdsTest::catalogsHoldNothingStale()
{
    QSet<QString> used;
    for (const FamilyModel &model : family) {
        for (const QString &text : textsOf(model, "en")) {
            used.insert(text);
            // In a PPD that declares a Latin encoding, English texts must be ASCII.
            QVERIFY2(std::all_of(text.cbegin(), text.cend(), [](QChar c) { return c.unicode() < 128; }),
                     qPrintable(text));
        }
    }
    for (const QString &language : {u"de"_s, u"fr"_s, u"ja"_s, u"es"_s, u"it"_s}) {
        const QHash<QString, QString> entries = catalog(language);
        for (auto it = entries.cbegin(); it != entries.cend(); ++it)
            QVERIFY2(used.contains(it.key()), qPrintable(language + u".po: "_s + it.key()));
    }
}

QTEST_GUILESS_MAIN(FamilyPpdsTest)
#include "family_ppds_test.moc"
