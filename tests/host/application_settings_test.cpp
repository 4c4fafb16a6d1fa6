// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/portal/application_settings.h"
#include "host/portal/stored_job.h"
#include "host/session/protection_checks.h"
#include "host/session/setting_keys.h"
#include "tests/host/host_fixture.h"
#include "tests/support/paths.h"

#include <QTest>

using namespace host;
using namespace Qt::StringLiterals;

// Settings of applications become the initial settings of a dialog, and the user's choices are returned to
// them.
class ApplicationSettingsTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void start_data();
    void start();
    void whatComesBack();
    void secretsStayHere();
    void locksHold();
    void titleOfAStoredJob_data();
    void titleOfAStoredJob();
    void privatePrintingWithoutACode_data();
    void privatePrintingWithoutACode();
    void madePagesAreAllPrinted();
    void optionsOfAPrintedJob();
    void rawQueue();

private:
    static std::unique_ptr<DialogSession> session()
    {
        PrintError error;
        auto ppd = PpdDocument::open(buildPath("/ppds/kelm880.ppd"), &error);
        if (!ppd)
            qFatal("%s", qPrintable(error.message));
        return std::make_unique<DialogSession>(officePrinter(), std::move(ppd));
    }
};

void ApplicationSettingsTest::start_data()
{
    QTest::addColumn<QJsonObject>("settings");
    QTest::addColumn<QJsonObject>("pageSetup");
    QTest::addColumn<QString>("keyword"); // or "copies", "pages", "collate"
    QTest::addColumn<QString>("expected");
    const auto row = [](const char *name, const QJsonObject &settings, const QString &keyword,
                        const QString &expected, const QJsonObject &pageSetup = {}) {
        QTest::newRow(name) << settings << pageSetup << keyword << expected;
    };
    row("copies", {{u"n-copies"_s, u"7"_s}}, u"copies"_s, u"7"_s);
    row("copies, nonsense", {{u"n-copies"_s, u"-3"_s}}, u"copies"_s, u"1"_s);
    row("copies, too many", {{u"n-copies"_s, u"2147483647"_s}}, u"copies"_s, u"9999"_s);
    row("uncollated", {{u"n-copies"_s, u"2"_s}, {u"collate"_s, u"false"_s}}, u"collate"_s, u"0"_s);
    row("uncollated, one copy", {{u"collate"_s, u"false"_s}}, u"collate"_s, u"1"_s);
    const auto ranges = [](const QString &text) {
        return QJsonObject{{u"print-pages"_s, u"ranges"_s}, {u"page-ranges"_s, text}};
    };
    row("ranges", ranges(u"0-1,3"_s), u"pages"_s, u"1-2,4"_s);
    row("ranges, reversed", ranges(u"5-2"_s), u"pages"_s, {});
    row("ranges, negative", ranges(u"-1-2"_s), u"pages"_s, {});
    row("ranges, too large", ranges(u"0-99999999999"_s), u"pages"_s, {});
    row("ranges, not chosen", {{u"page-ranges"_s, u"0"_s}}, u"pages"_s, {});
    row("two-sided", {{u"duplex"_s, u"horizontal"_s}}, u"Duplex"_s, u"DuplexNoTumble"_s);
    row("two-sided, nonsense", {{u"duplex"_s, u"sideways"_s}}, u"Duplex"_s, u"None"_s);
    row("paper type", {{u"media-type"_s, u"Thick1"_s}}, u"MediaType"_s, u"Thick1"_s);
    row("option of the printer", {{u"cups-ColorType"_s, u"Mono"_s}}, u"ColorType"_s, u"Mono"_s);
    row("unknown choice", {{u"cups-ColorType"_s, u"Pink"_s}}, u"ColorType"_s, u"Auto"_s);
    row("paper by its name", {}, u"PageSize"_s, u"A3"_s, {{u"PPDName"_s, u"A3"_s}});
    row("paper by its measures", {}, u"PageSize"_s, u"A3"_s,
        {{u"PPDName"_s, u"AnotherMakersA3"_s}, {u"Width"_s, 297.0}, {u"Height"_s, 420.0}});
    row("paper, nonsense", {}, u"PageSize"_s, u"A4"_s, {{u"Width"_s, -1e300}, {u"Height"_s, 0}});
}

void ApplicationSettingsTest::start()
{
    QFETCH(QJsonObject, settings);
    QFETCH(QJsonObject, pageSetup);
    QFETCH(QString, keyword);
    QFETCH(QString, expected);
    const auto session = this->session();
    beginWith(startingSettings(settings, pageSetup), session.get());
    const GeneralSettings &general = session->general();
    const QMap<QString, QString> values = {{u"copies"_s, QString::number(general.copies)},
                                           {u"collate"_s, QString::number(general.collate)},
                                           {u"pages"_s, general.pages}};
    QCOMPARE(values.contains(keyword) ? values.value(keyword) : session->ppd()->markedChoice(keyword),
             expected);
}

void ApplicationSettingsTest::whatComesBack()
{
    const auto session = this->session();
    const QJsonObject sent = {{u"n-copies"_s, u"3"_s},  {u"collate"_s, u"true"_s}, {u"reverse"_s, u"true"_s},
                              {u"number-up"_s, u"4"_s}, {u"scale"_s, u"50"_s},     {u"page-set"_s, u"odd"_s},
                              {u"x-own"_s, u"kept"_s},  {u"odd-type"_s, 3}};
    const StartingSettings start = startingSettings(sent, {});
    QCOMPARE(start.jobOptions, (NamedValues{{u"number-up"_s, u"4"_s},
                                            {u"outputorder"_s, u"reverse"_s},
                                            {u"page-set"_s, u"odd"_s},
                                            {u"natural-scaling"_s, u"50"_s}}));
    beginWith(start, session.get());
    chooseGeneral(session.get(), u"page-ranges"_s, u"2-3,5-"_s);
    session->markChoice(u"Duplex"_s, u"DuplexTumble"_s);
    session->markChoice(u"PageSize"_s, u"A3"_s);
    const QJsonObject back = settingsForApplication(sent, choiceForApplication(*session, {u"ps"_s}));
    QCOMPARE(back.value("page-ranges"_L1).toString(), u"1-2,4-999998"_s);
    QCOMPARE(back.value("print-pages"_L1).toString(), u"ranges"_s);
    QCOMPARE(back.value("duplex"_L1).toString(), u"vertical"_s);
    QCOMPARE(back.value("cups-Duplex"_L1).toString(), u"DuplexTumble"_s);
    QCOMPARE(back.value("printer"_L1).toString(), u"office"_s);
    QCOMPARE(back.value("output-file-format"_L1).toString(), u"ps"_s);
    QCOMPARE(back.value("x-own"_L1).toString(), u"kept"_s);
    session->setOfferedParts(false, true); // the application can produce it
    chooseGeneral(session.get(), u"page-ranges"_s, u"selection"_s);
    const QJsonObject part = settingsForApplication(sent, choiceForApplication(*session, {}));
    QCOMPARE(part.value("print-pages"_L1).toString(), u"selection"_s);
    QVERIFY(!part.contains("page-ranges"_L1));
    for (const char *name : {"n-copies", "collate", "reverse", "number-up", "scale", "page-set", "odd-type"})
        QVERIFY2(!back.contains(QLatin1String(name)), name);
    const QJsonObject setup = pageSetupForApplication({{u"Name"_s, u"iso_a4"_s}}, paperOf(*session));
    QCOMPARE(setup.value("PPDName"_L1).toString(), u"A3"_s);
    QCOMPARE(qRound(setup.value("Width"_L1).toDouble()), 297);
    QCOMPARE(qRound(setup.value("Height"_L1).toDouble()), 420);
    QVERIFY(!setup.contains("Name"_L1));
}

void ApplicationSettingsTest::secretsStayHere()
{
    const auto session = this->session();
    QStringList digits;
    for (const QString &keyword : session->ppd()->optionKeywords()) {
        if (session->ppd()->option(keyword)->hasChoice(u"7"_s) && session->markChoice(keyword, u"7"_s))
            digits.append(keyword);
    }
    QCOMPARE(digits.size(), 10); // of password and department
    const QJsonObject sent = {{u"cups-"_s + digits.first(), u"7"_s}};
    const QJsonObject back = settingsForApplication(sent, choiceForApplication(*session, {}));
    for (const QString &keyword : digits)
        QVERIFY2(!back.contains(u"cups-"_s + keyword), qPrintable(keyword));
    const StoredJob job{u"office"_s, u"T"_s, session->jobOptions()};
    const StoredJob again = StoredJob::fromJson(job.toJson());
    QCOMPARE(again.options, job.options);
    QCOMPARE(sentValue(again.options, digits.last()), u"7"_s);

    DialogSession custom(officePrinter(), openPpd(customPpd()));
    QVERIFY(custom.markChoice(u"Lock"_s, u"Custom.12345"_s));
    QVERIFY(custom.markChoice(u"Density"_s, u"Custom.3"_s));
    QCOMPARE(choiceForApplication(custom, {}).choices.last(), std::pair(u"Density"_s, u"Custom.3"_s));
}

void ApplicationSettingsTest::locksHold()
{
    QString error;
    Policy::setCurrent(*Policy::parse(R"({"rules": [{"locked": {"PageSize": "A4"}}]})", u"p"_s, &error));
    const auto session = this->session();
    beginWith(startingSettings(NamedValues{{u"media"_s, u"A3"_s}, {u"Duplex"_s, u"DuplexTumble"_s}}, 1),
              session.get());
    Policy::setCurrent({});
    QCOMPARE(session->ppd()->markedChoice(u"PageSize"_s), u"A4"_s);
    QCOMPARE(session->ppd()->markedChoice(u"Duplex"_s), u"DuplexTumble"_s);
    const QStringList notices = session->takeNotices();
    QVERIFY2(notices.value(0).contains(u"Set by the administrator."_s), qPrintable(notices.join(u' ')));
}

void ApplicationSettingsTest::titleOfAStoredJob_data()
{
    QTest::addColumn<QString>("decided");
    QTest::addColumn<QString>("window");
    QTest::addColumn<QString>("given"); // with the document, after a dialog called "Print"
    QTest::addColumn<QString>("expected");
    QTest::newRow("GTK") << QString() << u"Letter"_s << u"Print"_s << u"Letter"_s;
    QTest::newRow("GTK on Wayland") << QString() << QString() << u"Print"_s << u"Print"_s;
    QTest::newRow("file name") << u"letter"_s << u"Editor"_s << u"Print"_s << u"letter"_s;
    QTest::newRow("own title") << QString() << u"Editor"_s << u"Letter"_s << u"Letter"_s;
    QTest::newRow("none") << QString() << u"Editor"_s << QString() << u"Editor"_s;
}

void ApplicationSettingsTest::titleOfAStoredJob()
{
    QFETCH(QString, decided);
    QFETCH(QString, window);
    QFETCH(QString, given);
    const StoredJob job{u"office"_s, decided, {}, u"Print"_s, window};
    QTEST(StoredJob::fromJson(job.toJson()).titleFor(given), "expected");
}

void ApplicationSettingsTest::privatePrintingWithoutACode_data()
{
    QTest::addColumn<QJsonObject>("settings");
    QTest::addColumn<bool>("isMissing");
    const QJsonObject isPrivate{{u"cups-PrintMode"_s, u"Private"_s}};
    QTest::newRow("remembered, without the digits") << isPrivate << true;
    QJsonObject half = isPrivate;
    half.insert(u"cups-DINDigit1"_s, u"1"_s);
    QTest::newRow("half a code") << half << true;
    QJsonObject whole = half;
    whole.insert(u"cups-DINDigit5"_s, u"0"_s); // the printer's default
    QTest::newRow("with digits") << whole << false;
    QTest::newRow("not private") << QJsonObject{{u"cups-PrintMode"_s, u"Normal"_s}} << false;
}

// The dialog asks for the missing code, which the session reports.
void ApplicationSettingsTest::privatePrintingWithoutACode()
{
    QFETCH(QJsonObject, settings);
    const auto session = this->session();
    Protection protection;
    protection.choices.insert(u"PrintMode"_s, {u"Private"_s});
    protection.secrets.append(
        {u"privatePassword"_s, {u"DINDigit1"_s, u"DINDigit5"_s}, u"PrintMode"_s, u"Private"_s});
    session->setProtection(protection);
    beginWith(startingSettings(settings, {}), session.get());
    QTEST(!protectionGap(*session).isNull(), "isMissing");
}

void ApplicationSettingsTest::madePagesAreAllPrinted()
{
    Destination printer = officePrinter();
    for (const char *wanted : {"", "1-2147483647"}) { // the second one overrides a default of the queue
        DialogSession session(printer, openPpd(officePpd()));
        chooseGeneral(&session, u"page-ranges"_s, u"2-3"_s);
        QCOMPARE(sentValue(jobOptionsForMadePages(session), u"page-ranges"_s), QLatin1String(wanted));
        QCOMPARE(session.general().pages, u"2-3"_s);
        printer.options.insert(u"page-ranges"_s, u"1-2"_s);
    }
}

void ApplicationSettingsTest::optionsOfAPrintedJob()
{
    const auto session = this->session();
    const NamedValues options = {{u"media"_s, u"A3"_s},        {u"sides"_s, u"two-sided-short-edge"_s},
                                 {u"page-ranges"_s, u"2-1"_s}, {u"Collate"_s, u"false"_s},
                                 {u"number-up"_s, u"1"_s},     {u"job-uuid"_s, u"urn:uuid:1"_s},
                                 {u"HardDisk"_s, u"True"_s},   {u"natural-scaling"_s, u"500"_s}};
    const StartingSettings start = startingSettings(options, 100000);
    beginWith(start, session.get());
    QCOMPARE(session->general().copies, GeneralSettings::maxCopies);
    QCOMPARE(session->general().collate, false);
    QCOMPARE(session->general().pages, QString());
    QCOMPARE(session->ppd()->markedChoice(u"PageSize"_s), u"A3"_s);
    QCOMPARE(session->ppd()->markedChoice(u"Duplex"_s), u"DuplexTumble"_s);
    QCOMPARE(start.jobOptions, (NamedValues{{u"number-up"_s, u"1"_s}, {u"natural-scaling"_s, u"500"_s}}));
    const auto once = this->session(); // GTK also sends it for a single copy
    beginWith(startingSettings(options, 1), once.get());
    QCOMPARE(once->general().collate, true);
    QCOMPARE(session->takeNotices(), QStringList(u"natural-scaling takes whole numbers from 25 to 400."_s));
}

void ApplicationSettingsTest::rawQueue()
{
    DialogSession session(officePrinter(u"raw"_s), nullptr);
    beginWith(startingSettings({{u"n-copies"_s, u"2"_s}, {u"cups-X"_s, u"Y"_s}}, {{u"PPDName"_s, u"A4"_s}}),
              &session);
    QCOMPARE(session.general().copies, 2);
    QCOMPARE(choiceForApplication(session, {}).choices, NamedValues());
    QVERIFY(!pageSetupForApplication({}, paperOf(session)).isEmpty());
}

QTEST_GUILESS_MAIN(ApplicationSettingsTest)
#include "application_settings_test.moc"
