// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/extensions/extensions.h"
#include "host/printing/loaded_media.h"
#include "host/session/carry_over.h"
#include "host/session/session_state.h"
#include "host/session/setting_keys.h"
#include "tests/host/host_fixture.h"
#include "tests/support/test_bundle.h"

#include <QJsonArray>
#include <QSignalSpy>
#include <QTest>

using namespace host;
using namespace Qt::StringLiterals;

// A session with two panels: color mode in the first; balance and sharpness in the second, which resets the
// balance and saves itself when the mode becomes monochrome.
class DialogSessionTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void panelsAreRestoredOnceWhenAsked();
    void panelsBeforeAnnounceWithoutBeingRestored();
    void panelsNeverShownKeepTheirSettings();
    void resetByAnotherPanelIsToldAndSent();
    void resetReachesAPanelThatWasRestored();
    void keywordAnnouncedTwiceKeepsItsFirstValue();
    void savedDefaultsAreSent();
    void resolutionReachesPanelsWithoutRestoring();
    void userDefaultsTravel();
    void panelSettingsOfAPresetBecomePrintSettings();
    void keys_data();
    void keys();
    void refusedValueLeavesNothingBehind();
    void secretValueIsNotRepeatedElsewhere();
    void settingsGoFromPrinterToPrinter_data();
    void settingsGoFromPrinterToPrinter();
    void secretSettings_data();
    void secretSettings();
    void blockingWorkIsAnnounced();
    void mediaThatIsNotLoaded_data();
    void mediaThatIsNotLoaded();
    void brokenExtensionIsToldAndPassedOver();
    void panelThatCannotBeMadeIsTold();

private:
    void makeSession(const Destination &printer = officePrinter());

    std::unique_ptr<DialogSession> m_session;
    FakePanel *m_colour = nullptr;
    FakePanel *m_balance = nullptr;
};

void DialogSessionTest::init()
{
    makeSession();
}

void DialogSessionTest::makeSession(const Destination &printer)
{
    m_session = std::make_unique<DialogSession>(printer, openPpd(officePpd()));
    auto colour = std::make_unique<FakePanel>(u"Colour"_s, QStringList(u"ColorType"_s), m_session.get());
    auto balance =
        std::make_unique<FakePanel>(u"Balance"_s, QStringList({u"Cyan"_s, u"Sharp"_s}), m_session.get());
    m_colour = colour.get();
    m_balance = balance.get();
    m_colour->onSet = [this](const QString &key, const QString &choice) {
        if (key != u"ColorType"_s || choice != u"Mono"_s)
            return;
        m_balance->setValueForKey(u"0"_s, u"Cyan"_s);
        m_balance->saveValuesAndReturnError(nullptr);
    };
    platform::PrintDialogPanels panels;
    panels.push_back(std::move(colour));
    panels.push_back(std::move(balance));
    adoptPanels(m_session.get(), std::move(panels));
}

void DialogSessionTest::panelsAreRestoredOnceWhenAsked()
{
    m_session->save();
    QCOMPARE(m_colour->restored + m_balance->restored, 0);
    QCOMPARE(m_colour->saved + m_balance->saved, 0);
    m_session->prepare(0);
    QCOMPARE(m_balance->restored, 0);
    m_session->prepare(1);
    m_session->prepare(1);
    QCOMPARE(m_colour->restored, 1);
    QCOMPARE(m_balance->restored, 1);
    m_session->save();
    QCOMPARE(m_colour->saved, 1);
    QCOMPARE(m_balance->saved, 1);
    QVERIFY(m_session->takeNotices().isEmpty());
}

// An unreachable printer must not delay users who open another panel.
void DialogSessionTest::panelsBeforeAnnounceWithoutBeingRestored()
{
    Destination printer = officePrinter();
    printer.options = {{u"ColorType"_s, u"Mono"_s}, {u"Cyan"_s, u"2"_s}};
    makeSession(printer);
    m_session->prepare(1);
    QCOMPARE(m_colour->restored, 0);
    QCOMPARE(m_balance->restored, 1);
    QCOMPARE(m_balance->valueForKey(u"Cyan"_s).toString(), u"0"_s); // it was notified of the color mode
    m_session->save();
    QCOMPARE(m_colour->saved, 0);
    QVERIFY(m_session->markChoice(u"ColorType"_s, u"Auto"_s)); // and continues to be notified
    QCOMPARE(m_colour->valueForKey(u"ColorType"_s).toString(), u"Auto"_s);
    m_session->prepare(0);
    QCOMPARE(m_colour->restored, 1);
}

void DialogSessionTest::panelsNeverShownKeepTheirSettings()
{
    Destination printer = officePrinter();
    printer.options = {{u"Cyan"_s, u"2"_s}, {u"Sharp"_s, u"1"_s}};
    makeSession(printer);
    m_session->prepare(0);
    m_colour->setValueForKey(u"Mono"_s, u"ColorType"_s);
    m_session->save();
    // The reset is kept; the sharpness, which the panel has never read, does not become its default.
    QCOMPARE(m_session->ppd()->markedChoice(u"Cyan"_s), u"0"_s);
    QCOMPARE(m_session->ppd()->markedChoice(u"Sharp"_s), u"1"_s);
    QCOMPARE(
        m_session->takeNotices(),
        QStringList(
            u"“Cyan Balance” was reset to “Neutral”. The reason: “Colour Mode” is “Black and White”."_s));
    QCOMPARE(m_balance->restored, 0);
    m_session->prepare(1);
    QCOMPARE(m_balance->valueForKey(u"Sharp"_s).toString(), u"1"_s);
}

void DialogSessionTest::resetByAnotherPanelIsToldAndSent()
{
    m_session->prepare(0);
    m_session->prepare(1);
    m_balance->setValueForKey(u"2"_s, u"Cyan"_s);
    m_session->save();
    QVERIFY(m_session->takeNotices().isEmpty()); // the user's own change is not reported
    QSignalSpy changed(m_session.get(), &DialogSession::changed);
    m_colour->setValueForKey(u"Mono"_s, u"ColorType"_s); // like a control, without a call of the session
    QVERIFY(changed.wait());
    QCOMPARE(
        m_session->takeNotices(),
        QStringList(
            u"“Cyan Balance” was reset to “Neutral”. The reason: “Colour Mode” is “Black and White”."_s));
    m_session->save();
    QCOMPARE(sentValue(m_session->jobOptions(), u"Cyan"_s), u"0"_s);
    QCOMPARE(sentValue(m_session->jobOptions(), u"ColorType"_s), u"Mono"_s);
    QVERIFY(m_session->conflicts().isEmpty());
}

void DialogSessionTest::resetReachesAPanelThatWasRestored()
{
    m_session->prepare(1);
    QVERIFY(m_session->markChoice(u"Cyan"_s, u"1"_s));
    QCOMPARE(m_balance->valueForKey(u"Cyan"_s).toString(), u"1"_s);
    m_session->save();
    QCOMPARE(m_session->ppd()->markedChoice(u"Cyan"_s), u"1"_s); // not overwritten by an old pending value
}

void DialogSessionTest::keywordAnnouncedTwiceKeepsItsFirstValue()
{
    for (const char *choice : {"1", "2"}) { // the state between two saves of a panel does not matter
        m_balance->announce(u"Cyan"_s, QLatin1String(choice));
        m_session->ppd()->mark(u"Cyan"_s, QLatin1String(choice));
        m_balance->setValueForKey(QLatin1String(choice), u"Cyan"_s);
    }
    m_session->ppd()->mark(u"Cyan"_s, u"0"_s); // and finally everything is unchanged
    m_session->save();
    QVERIFY(m_session->takeNotices().isEmpty());
}

void DialogSessionTest::savedDefaultsAreSent()
{
    QVERIFY(sentValue(m_session->jobOptions(), u"Cyan"_s).isNull());
    m_session->prepare(1);
    m_session->save();
    QCOMPARE(sentValue(m_session->jobOptions(), u"Cyan"_s), u"0"_s);
    // not handled by a panel, and the default
    QVERIFY(sentValue(m_session->jobOptions(), u"PageSize"_s).isNull());
}

void DialogSessionTest::resolutionReachesPanelsWithoutRestoring()
{
    m_colour->onSet = nullptr;
    m_session->prepare(0);
    m_session->prepare(1);
    m_colour->setValueForKey(u"Mono"_s, u"ColorType"_s);
    m_session->save();
    m_balance->setValueForKey(u"2"_s, u"Cyan"_s);
    m_session->save();
    QCOMPARE(m_session->conflicts().size(), 1);
    const auto proposal = m_session->proposal();
    QVERIFY(proposal);
    QCOMPARE(proposal->first().option, u"ColorType"_s); // the balance was changed last
    m_session->apply(*proposal);
    QVERIFY(m_session->conflicts().isEmpty());
    QCOMPARE(m_colour->valueForKey(u"ColorType"_s).toString(), u"Auto"_s);
    QCOMPARE(m_colour->restored, 1);
}

void DialogSessionTest::userDefaultsTravel()
{
    Destination printer = officePrinter();
    printer.options = {{u"sides"_s, u"two-sided-long-edge"_s},
                       {u"number-up"_s, u"2"_s},
                       {u"copies"_s, u"3"_s},
                       {u"printer-info"_s, u"x"_s},
                       {u"device-uri"_s, u"socket://a"_s}};
    makeSession(printer);
    const auto options = m_session->jobOptions();
    QCOMPARE(sentValue(options, u"Duplex"_s), u"DuplexNoTumble"_s);
    QCOMPARE(sentValue(options, u"number-up"_s), u"2"_s);
    QCOMPARE(sentValue(options, u"copies"_s), u"3"_s);
    for (const QString &name : {u"sides"_s, u"printer-info"_s, u"device-uri"_s})
        QVERIFY2(sentValue(options, name).isNull(), qPrintable(name));
}

void DialogSessionTest::panelSettingsOfAPresetBecomePrintSettings()
{
    Destination printer = officePrinter();
    printer.options = {{u"com.example.profile"_s, u"3"_s}};
    makeSession(printer);
    QCOMPARE(m_session->state().printSettings.value(u"com.example.profile"_s), QVariant(u"3"_s));
    QCOMPARE(sentValue(m_session->jobOptions(), u"com.example.profile"_s), u"3"_s);
    PMPrintSettingsSetValue(m_colour->panelHost->printSettings(), u"com.example.profile"_s, {}, false);
    QVERIFY(sentValue(m_session->jobOptions(), u"com.example.profile"_s).isNull());
}

void DialogSessionTest::keys_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("error"); // a part of it; empty if the key accepts the value
    QTest::newRow("option of a panel") << u"Cyan"_s << u"1"_s << QString();
    QTest::newRow("option of none") << u"Duplex"_s << u"DuplexNoTumble"_s << QString();
    QTest::newRow("whatever the case") << u"Duplex"_s << u"duplexnotumble"_s << QString();
    QTest::newRow("key of a panel") << u"code"_s << u"01230"_s << QString();
    QTest::newRow("general") << u"copies"_s << u"3"_s << QString();
    QTest::newRow("no such choice") << u"Cyan"_s << u"9"_s << u"Cyan has no choice “9”; it has 0 … 2."_s;
    QTest::newRow("no such key") << u"Sepia"_s << u"1"_s << u"Sepia"_s;
    QTest::newRow("code too short") << u"code"_s << u"1230"_s << u"code takes 5 digits."_s;
    QTest::newRow("code too long") << u"code"_s << u"123456"_s << u"code takes 5 digits."_s;
    QTest::newRow("copies") << u"copies"_s << u"0"_s << u"1 to 9999"_s;
    QTest::newRow("pages") << u"page-ranges"_s << u"3-1"_s << u"3-1"_s;
    QTest::newRow("back to the default") << u"print-scaling"_s << QString() << QString();
    QTest::newRow("older name without a value") << u"landscape"_s << QString() << u"landscape takes"_s;
    QTest::newRow("key that cannot be set")
        << u"supportedPPDOptionKeys"_s << u"x"_s << u"supportedPPDOptionKeys"_s;
}

void DialogSessionTest::keys()
{
    QFETCH(QString, key);
    QFETCH(QString, value);
    QFETCH(QString, error);
    PrintError problem;
    QCOMPARE(choose(m_session.get(), {key, value}, &problem), error.isEmpty());
    QVERIFY2(problem.message.contains(error), qPrintable(problem.message));
    QVERIFY(error.isEmpty() == (problem.kind != PrintError::Kind::BadValue));
    if (key == u"code"_s && error.isEmpty())
        QCOMPARE(m_colour->code(), value);
    else if (m_session->ppd()->hasOption(key) && error.isEmpty())
        QCOMPARE(m_session->ppd()->markedChoice(key).toLower(), value.toLower());
}

void DialogSessionTest::refusedValueLeavesNothingBehind()
{
    PrintError problem;
    const auto setCode = [&](const QString &value) {
        return choose(m_session.get(), {u"code"_s, value}, &problem);
    };
    QVERIFY(setCode(u"01230"_s));
    QVERIFY(!setCode(u"777"_s));
    QVERIFY(!problem.message.contains(u"777"_s)); // it may be a secret
    QCOMPARE(m_colour->code(), u"01230"_s);
    QCOMPARE(m_balance->restored, 0); // that panel was not requested
    // A value may have changed an option before it is found to be invalid.
    m_colour->onSet = {};
    connect(m_colour, &platform::KeyValueObject::valueDidChange, m_colour, [this](const QString &key) {
        if (key == u"code"_s && m_colour->code() == u"99999"_s)
            m_colour->setValueForKey(u"Sepia"_s, u"ColorType"_s);
    });
    QVERIFY(!setCode(u"99999"_s));
    QCOMPARE(m_colour->valueForKey(u"ColorType"_s).toString(), u"Auto"_s);
}

void DialogSessionTest::secretValueIsNotRepeatedElsewhere()
{
    PrintError problem;
    for (ChosenSetting setting : {ChosenSetting{u"Cyan"_s, u"2"_s}, {u"Duplex"_s, u"DuplexNoTumble"_s}}) {
        setting.isSecret = true;
        QVERIFY(choose(m_session.get(), setting, &problem));
    }
    DialogSession raw(officePrinter(u"raw"_s), nullptr);
    carryOver(*m_session, &raw);
    QCOMPARE(raw.takeNotices(), QStringList(u"Not available on this printer: Cyan Balance, Two-Sided."_s));
}

void DialogSessionTest::settingsGoFromPrinterToPrinter_data()
{
    QTest::addColumn<QStringList>("words");
    QTest::addColumn<QString>("notice"); // of a printer without this setting
    QTest::newRow("choice") << QStringList(u"ColorType=Mono"_s)
                            << u"Not available on this printer: Colour Mode: Black and White."_s;
    QTest::newRow("protection") << QStringList(u"Duplex=DuplexNoTumble"_s)
                                << u"This printer does not have “Two-Sided: Long Edge”: the job will not be "
                                   "protected."_s;
    QTest::newRow("protection that was taken back")
        << QStringList({u"Duplex=DuplexNoTumble"_s, u"Duplex=None"_s})
        << u"Not available on this printer: Two-Sided: Off."_s;
    QTest::newRow("code without its choice")
        << QStringList(u"code=01230"_s)
        << u"Not available on this printer: the code for “Two-Sided: Long Edge”."_s;
}

void DialogSessionTest::settingsGoFromPrinterToPrinter()
{
    QFETCH(QStringList, words);
    QFETCH(QString, notice);
    Protection protection;
    protection.choices = {{u"Duplex"_s, {u"DuplexNoTumble"_s}}};
    protection.secrets = {{u"code"_s, {}, u"Duplex"_s, u"DuplexNoTumble"_s}};
    m_session->setProtection(protection);
    for (const QString &word : words) {
        PrintError error;
        const ChosenSetting setting{word.section(u'=', 0, 0), word.section(u'=', 1)};
        QVERIFY2(choose(m_session.get(), setting, &error), qPrintable(error.message));
    }
    const QList<JobOption> options = m_session->jobOptions();
    DialogSession raw(officePrinter(u"raw"_s), nullptr);
    carryOver(*m_session, &raw);
    QCOMPARE(raw.takeNotices(), QStringList(notice));
    makeSession();
    m_session->setProtection(protection);
    carryOver(raw, m_session.get());
    QCOMPARE(m_session->takeNotices(), QStringList());
    QCOMPARE(m_session->jobOptions(), options);
}

void DialogSessionTest::secretSettings_data()
{
    QTest::addColumn<QByteArray>("options"); // of a PPD
    QTest::addColumn<QString>("setting");
    QTest::addColumn<bool>("isSecret");
    const auto numbers = [](int first, int last, const QByteArray &prefix = {}) {
        QByteArrayList choices;
        for (int i = first; i <= last; ++i)
            choices.append(prefix + QByteArray::number(i));
        return choices;
    };
    const QByteArrayList digits = numbers(0, 9);
    const auto pair = [](const char *one, const char *two, const QByteArrayList &choices) {
        return ppdOption(one, choices) + ppdOption(two, choices);
    };
    const auto row = [](const char *name, const QByteArray &options, const QString &setting, bool isSecret) {
        QTest::newRow(name) << options << setting << isSecret;
    };
    row("numbered", pair("DINDigit1", "DINDigit2", digits), u"DINDigit2"_s, true);
    row("in another case", pair("Slot1", "Slot2", digits), u"sLOT1"_s, true);
    row("with None", pair("Box1/Box", "Box2/Box", QByteArrayList{"None"} + digits), u"Box1"_s, true);
    row("with Off", pair("FirstBox", "SecondBox", QByteArrayList{"Off"} + numbers(1, 9)), u"FirstBox"_s,
        true);
    row("behind a word", pair("Box1", "Box2", numbers(0, 9, "D")), u"Box2"_s, true);
    row("named for a code", ppdOption("JobPIN", digits), u"JobPIN"_s, true);
    row("one scale", ppdOption("Density", digits), u"Density"_s, false);
    row("two scales", pair("CyanDensity", "MagentaDensity", digits), u"CyanDensity"_s, false);
    row("numbered scales", pair("Margin1", "Margin2", numbers(0, 20)), u"Margin1"_s, false);
    row("numbered switches", pair("Bin1", "Bin2", {"False", "True"}), u"Bin1"_s, false);
    row("kind of a password", ppdOption("PasswordKind", {"None", "Fixed"}), u"PasswordKind"_s, false);
    row("job option", {}, u"job-password"_s, true);
    row("job option of another printer", {}, u"DINDigit3"_s, true);
    row("account", {}, u"job-account-id"_s, true);
    row("pinned", {}, u"job-pinning"_s, false);
}

// Without a bundle that declares secrets.
void DialogSessionTest::secretSettings()
{
    QFETCH(QByteArray, options);
    QFETCH(QString, setting);
    QFETCH(bool, isSecret);
    DialogSession session(officePrinter(), openPpd(officePpd() + ppdGroup("More/More", options)));
    QCOMPARE(session.isSecret(setting), isSecret);
    if (session.ppd()->hasOption(setting)) {
        session.markChoice(setting, session.ppd()->option(setting)->choices.last().keyword);
        const auto shown = session.summary().last().entries.last();
        QCOMPARE(shown.second == u"•"_s, isSecret);
    }
}

void DialogSessionTest::blockingWorkIsAnnounced()
{
    QSignalSpy began(m_session.get(), &DialogSession::blockingBegan);
    QSignalSpy ended(m_session.get(), &DialogSession::blockingEnded);
    {
        const platform::BlockingWork work(m_colour->panelHost, u"Asking the printer"_s);
        QCOMPARE(began.size(), 1);
        QCOMPARE(began.first().first().toString(), u"Asking the printer"_s);
        QCOMPARE(ended.size(), 0);
    }
    QCOMPARE(ended.size(), 1);
}

void DialogSessionTest::brokenExtensionIsToldAndPassedOver()
{
    TestBundle broken, codeless;
    broken.writeFile(u"Info.json"_s, "{");
    codeless.setInfo(u"PanelType"_s, platform::printDialogPanelType);
    codeless.setInfo(u"PrinterModels"_s, QJsonArray{u"Test *"_s});
    Extensions extensions({broken.folder(), codeless.folder()});
    DialogSession session(officePrinter(), openPpd(officePpd()));
    session.loadPanels(extensions);
    QCOMPARE(session.panels().count(), 0);
    const QStringList notices = session.takeNotices();
    QCOMPARE(notices.size(), 2);
    QVERIFY2(notices.at(0).contains(broken.folder()), qPrintable(notices.at(0)));
    QVERIFY2(notices.at(1).contains(codeless.folder()), qPrintable(notices.at(1)));
}

void DialogSessionTest::panelThatCannotBeMadeIsTold()
{
    auto *problems = dynamic_cast<platform::PanelProblemHost *>(m_colour->panelHost); // like a plug-in
    QVERIFY(problems);
    problems->panelFailed(u"Fax"_s, u"Fax.ui is missing"_s);
    QCOMPARE(m_session->takeNotices(),
             QStringList(u"A page of the printer's settings cannot be shown: Fax.ui is missing"_s));
}

void DialogSessionTest::mediaThatIsNotLoaded_data()
{
    using Marks = QMap<QString, QString>;
    QTest::addColumn<QList<LoadedTray>>("trays");
    QTest::addColumn<Marks>("marks");
    QTest::addColumn<QStringList>("missing");
    const LoadedTray a4{u"tray-1"_s, u"stationery"_s, u"A4"_s, 210, 297};
    const LoadedTray a3Labels{u"tray-2"_s, u"labels"_s, u"A3"_s, 297, 420};
    LoadedTray fedByTheOtherEdge = a4, unknown = a4, nameless = a4;
    std::swap(fedByTheOtherEdge.width, fedByTheOtherEdge.length);
    unknown.width = unknown.length = 0;
    unknown.type.clear();
    nameless.source = u"some-tray"_s;
    const QList<LoadedTray> both{a4, a3Labels};
    const Marks a3{{u"PageSize"_s, u"A3"_s}};
    QTest::newRow("nothing reported") << QList<LoadedTray>() << a3 << QStringList();
    QTest::newRow("loaded") << both << a3 << QStringList();
    QTest::newRow("other edge") << QList<LoadedTray>{fedByTheOtherEdge} << Marks() << QStringList();
    QTest::newRow("size") << QList<LoadedTray>{a4} << a3
                          << QStringList{u"“Tabloid A3” is not loaded in any tray."_s};
    QTest::newRow("size in a tray") << both << Marks{{u"PageSize"_s, u"A3"_s}, {u"InputSlot"_s, u"Tray1"_s}}
                                    << QStringList{u"“Tabloid A3” is not loaded in “Upper Tray”."_s};
    QTest::newRow("type") << QList<LoadedTray>{a4} << Marks{{u"MediaType"_s, u"Labels"_s}}
                          << QStringList{u"“Sticky Labels” is not loaded in any tray."_s};
    QTest::newRow("size of the type") << both << Marks{{u"MediaType"_s, u"Labels"_s}}
                                      << QStringList{u"“Usual A4” is loaded, but not as “Sticky Labels”."_s};
    QTest::newRow("empty tray") << both << Marks{{u"InputSlot"_s, u"Tray3"_s}}
                                << QStringList{u"Nothing is loaded in “Third Tray”."_s};
    QTest::newRow("unknown size") << QList<LoadedTray>{unknown} << a3 << QStringList();
    QTest::newRow("unknown tray") << QList<LoadedTray>{nameless} << Marks{{u"InputSlot"_s, u"Tray3"_s}}
                                  << QStringList();
}

void DialogSessionTest::mediaThatIsNotLoaded()
{
    QFETCH(QList<LoadedTray>, trays);
    using Marks = QMap<QString, QString>;
    QFETCH(Marks, marks);
    const auto ppd =
        openPpd(ppdOption("PageSize/Size", {"A4/Usual A4", "A3/Tabloid A3"}) +
                "*PaperDimension A4: \"595 842\"\n*PaperDimension A3: \"842 1191\"\n"
                "*ImageableArea A4: \"12 12 583 830\"\n*ImageableArea A3: \"12 12 830 1179\"\n" +
                ppdOption("MediaType/Type", {"Auto/Any", "Stationery/Plain", "Labels/Sticky Labels"}) +
                ppdOption("InputSlot/Tray",
                          {"Auto/Any", "Tray1/Upper Tray", "Tray2/Lower Tray", "Tray3/Third Tray"}));
    QVERIFY(ppd);
    const LoadedMedia loaded(ppd.get(), trays);
    for (auto it = marks.begin(); it != marks.end(); ++it)
        QVERIFY(ppd->mark(it.key(), it.value()));
    QTEST(loaded.missing(*ppd), "missing");
}

QTEST_MAIN(DialogSessionTest)
#include "dialog_session_test.moc"
