// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/batch/batch_run.h"
#include "host/policy/policy_print_system.h"
#include "host/window/guide/search_bar.h"
#include "host/window/messages/message_bar.h"
#include "host/window/pages/page_book.h"
#include "platform/choice_box.h"
#include "platform/key_value_object.h"
#include "tests/host/window_fixture.h"

#include <QBuffer>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>

using namespace host;
using namespace Qt::StringLiterals;

class PolicyTest : public WindowFixture
{
    Q_OBJECT
private Q_SLOTS:
    void init() { reset(); }
    void cleanup()
    {
        m_window.reset();
        Policy::setCurrent({});
    }
    void errorsNameTheLine_data();
    void errorsNameTheLine();
    void batchObeys_data();
    void batchObeys();
    void saysThatItOffersNone_data();
    void saysThatItOffersNone();
    void lockedChoiceNeedsItsCode();
    void dialogShowsWhatIsLocked();
    void lockedChoiceIsNotGivenUp();
    void panelKeepsWhatIsLocked();
    void panelHidesOptions();

private:
    static Policy lay(const QByteArray &json) // down, for this test
    {
        QString error;
        const auto policy = Policy::parse(json, u"policy.json"_s, &error);
        if (!policy)
            qFatal("%s", qPrintable(error));
        Policy::setCurrent(*policy);
        return *policy;
    }
    bool showsDialog(PrintSystem &system, Extensions &extensions)
    {
        PrintTask task;
        task.files = {m_document.fileName()};
        m_window = std::make_unique<PrintWindow>(system, extensions, task);
        PrintError error;
        const bool opened = m_window->open(&error);
        m_window->show();
        return opened && QTest::qWaitForWindowActive(m_window.get());
    }
    bool shows(const QString &text) const // plainly
    {
        const auto labels = m_window->findChildren<QLabel *>();
        return std::any_of(labels.begin(), labels.end(), [&](const QLabel *label) {
            return label->isVisible() && label->text().contains(text) && label->textFormat() == Qt::PlainText;
        });
    }
    int print(PrintSystem &system, Extensions &extensions, const QStringList &words);

    void useFamily() // the real panels and the PPD of a real model, for the queue "office"
    {
        QFile ppd(QStringLiteral(KELMAR_BINARY_DIR "/ppds/kelm880.ppd"));
        QVERIFY(ppd.open(QIODevice::ReadOnly));
        (void)ppd.readLine(); // the fixture writes it
        m_system.ppds[u"office"_s] = ppd.readAll();
        m_system.printers.first().deviceUri = u"file:/dev/null"_s; // a device that nobody asks
    }

    const QString m_bundle = QStringLiteral(KELMAR_BINARY_DIR "/bin/OrbM880.bundle");
    QByteArray m_said;
};

int PolicyTest::print(PrintSystem &system, Extensions &extensions, const QStringList &words)
{
    QString error;
    const auto arguments = parseArguments(
        QStringList{u"kelmar-print"_s, u"--batch"_s} + words + QStringList(m_document.fileName()), &error);
    QBuffer out, err;
    out.open(QIODevice::WriteOnly);
    err.open(QIODevice::WriteOnly);
    ResultWriter writer(&out, &err);
    const int code = BatchRun(*arguments, system, extensions).run(&writer);
    m_said = err.data();
    return code;
}

void PolicyTest::errorsNameTheLine_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<QString>("error"); // its beginning; empty for none
    const QByteArray rule = "{\n\"rules\": [\n{\"locked\": {\"A\": \"[{\\\"\"}},\n{";
    QTest::newRow("empty object") << "{}"_ba << QString();
    QTest::newRow("a rule") << rule + "}]}" << QString();
    QTest::newRow("empty file") << ""_ba << u"policy.json, line 1, column 1: "_s;
    QTest::newRow("a list") << "[]"_ba << u"policy.json, line 1, column 1: it is not one object"_s;
    QTest::newRow("no JSON") << "{\n\"queues\": [\n\"a\",]\n}"_ba
                             << u"policy.json, line 3, column 5: object"_s;
    QTest::newRow("unknown key") << "{\n\"contact\": \"ques\",\n \"ques\": []}"_ba
                                 << u"policy.json, line 3, column 2: “ques” is not known"_s;
    QTest::newRow("unknown key of a rule")
        << rule + "\n\"lock\": {}}]}" << u"policy.json, line 5, column 1: “lock” is not known"_s;
    QTest::newRow("wrong type in the second rule")
        << rule + "\n\"queues\": [\"ä\"], \"locked\": []}]}"
        << u"policy.json, line 5, column 18: “locked” takes an object"_s;
    QTest::newRow("number for a choice") << rule + "\n\"defaults\": {\"B\":\"1\",\n\"C\": 2}}]}"
                                         << u"policy.json, line 6, column 1: “C” takes a choice"_s;
    QTest::newRow("number for a queue")
        << "{\"queues\":\n[1]}"_ba << u"policy.json, line 1, column 2: “queues” takes a list"_s;
    QTest::newRow("rule of text") << "{\n\"rules\": [\"a\"]}"_ba
                                  << u"policy.json, line 2, column 1: “rules” takes objects"_s;
    QTest::newRow("rules of text") << "{\n\"rules\": \"a\"}"_ba
                                   << u"policy.json, line 2, column 1: “rules” takes a list"_s;
}

void PolicyTest::errorsNameTheLine()
{
    QFETCH(QByteArray, json);
    QFETCH(QString, error);
    QString problem;
    QCOMPARE(Policy::parse(json, u"policy.json"_s, &problem).has_value(), error.isEmpty());
    QVERIFY2(error.isEmpty() ? problem.isNull() : problem.startsWith(error), qPrintable(problem));
}

void PolicyTest::batchObeys_data()
{
    QTest::addColumn<QStringList>("words");
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("colour");
    QTest::addColumn<QString>("sides");
    QTest::newRow("nothing said") << QStringList{u"-d"_s, u"office"_s} << 0 << u"Mono"_s
                                  << u"DuplexNoTumble"_s;
    QTest::newRow("default changed") << QStringList{u"-d"_s, u"office"_s, u"--set"_s, u"Duplex=None"_s} << 0
                                     << u"Mono"_s << u"None"_s;
    QTest::newRow("locked, changed") << QStringList{u"-d"_s, u"office"_s, u"--set"_s, u"ColorType=Auto"_s}
                                     << 1 << QString() << QString();
    QTest::newRow("locked, passed on")
        << QStringList{u"-d"_s, u"office"_s, u"-o"_s, u"ColorType=Auto"_s} << 1 << QString() << QString();
    QTest::newRow("another rule") << QStringList{u"-d"_s, u"attic"_s, u"--set"_s, u"ColorType=Auto"_s} << 0
                                  << u"Auto"_s << QString();
    QTest::newRow("a queue not offered") << QStringList{u"-d"_s, u"raw"_s} << 1 << QString() << QString();
}

void PolicyTest::batchObeys()
{
    QFETCH(QStringList, words);
    QFETCH(int, code);
    QFETCH(QString, colour);
    QFETCH(QString, sides);
    PolicyPrintSystem system(m_system, {}, lay(R"({
        "contact": "IT, phone 7", "queues": ["off*", "attic"],
        "rules": [{"queues": ["office"], "defaults": {"Duplex": "DuplexNoTumble"},
                   "locked": {"ColorType": "Mono", "Unknown": "x", "Sharp": "7"}}]})"));
    QCOMPARE(print(system, m_none, words), code);
    QCOMPARE(m_system.submitted.size(), code == 0 ? 1 : 0);
    if (code != 0) {
        QVERIFY2(m_said.contains("Set by the administrator (IT, phone 7)."), m_said.constData());
        return;
    }
    const QList<JobOption> sent = m_system.submitted.first().options;
    QCOMPARE(sentValue(sent, u"ColorType"_s), colour);
    QCOMPARE(sentValue(sent, u"Duplex"_s), sides);
}

void PolicyTest::saysThatItOffersNone_data()
{
    QTest::addColumn<bool>("hasDefault");
    QTest::addColumn<QByteArray>("queues");
    QTest::addColumn<QString>("said");
    const QString none =
        u"The rules in policy.json offer none of the printers that have been set up. Set by the administrator."_s;
    QTest::newRow("none") << true << "nowhere"_ba << none;
    QTest::newRow("none, and no default") << false << "nowhere"_ba << none;
    QTest::newRow("one, and no default") << false << "attic"_ba << u"no such printer"_s;
}

// With a default printer or without one; nobody has named a printer.
void PolicyTest::saysThatItOffersNone()
{
    QFETCH(bool, hasDefault);
    QFETCH(QByteArray, queues);
    QFETCH(QString, said);
    for (Destination &printer : m_system.printers)
        printer.isDefault = printer.isDefault && hasDefault;
    PolicyPrintSystem system(m_system, {}, lay("{\"queues\": [\"" + queues + "\"]}"));
    QCOMPARE(print(system, m_none, {}), 1);
    QVERIFY2(m_said.contains(said.toUtf8()), m_said.constData());
    QVERIFY(showsDialog(system, m_none));
    QTRY_VERIFY(m_window->session() ? queues == "attic" : shows(said));
}

void PolicyTest::lockedChoiceNeedsItsCode()
{
    useFamily();
    Extensions extensions({m_bundle});
    PolicyPrintSystem system(m_system, {m_bundle},
                             lay(R"({"rules": [{"locked": {"PrintMode": "Private"}}]})"));
    QCOMPARE(print(system, extensions, {u"-d"_s, u"office"_s}), 1);
    QVERIFY2(m_said.contains("“Print Mode” has to be “Private”, with a code. Set by the administrator."),
             m_said.constData());
    QCOMPARE(print(system, extensions, {u"-d"_s, u"office"_s, u"--set"_s, u"privatePassword=12345"_s}), 0);
    QCOMPARE(sentValue(m_system.submitted.first().options, u"PrintMode"_s), u"Private"_s);
    PolicyPrintSystem other(m_system, {m_bundle}, lay(R"({"rules": [{"locked": {"PrintMode": "Normal"}}]})"));
    QCOMPARE(print(other, extensions, {u"-d"_s, u"office"_s}), 0); // no code belongs to that choice
}

void PolicyTest::dialogShowsWhatIsLocked()
{
    const Policy policy = lay(R"({"contact": "<b>IT</b>", "queues": ["office", "raw"],
        "rules": [{"locked": {"Duplex": "DuplexNoTumble"}, "hiddenOptions": ["MediaType"]}]})");
    PolicyPrintSystem system(m_system, {}, policy);
    QVERIFY(showsDialog(system, m_none));
    QTRY_VERIFY(find<QComboBox>(u"PageSize"_s));
    QVERIFY(!find<QComboBox>(u"MediaType"_s));
    auto *box = find<platform::ChoiceBox>(u"Duplex"_s);
    QVERIFY(box);
    QCOMPARE(box->currentData().toString(), u"DuplexNoTumble"_s);
    QVERIFY(!box->isItemEnabled(box->findData(u"None"_s)));
    QVERIFY(shows(u"Set by the administrator (<b>IT</b>)."_s));
    QVERIFY(!m_window->session()->markChoice(u"Duplex"_s, u"None"_s));
}

// A choice that only a change of what is locked would allow is not offered.
void PolicyTest::lockedChoiceIsNotGivenUp()
{
    PolicyPrintSystem system(m_system, {}, lay(R"({"rules": [{"locked": {"MediaType": "Thick"}}]})"));
    QVERIFY(showsDialog(system, m_none));
    QTRY_VERIFY(find<platform::ChoiceBox>(u"Duplex"_s));
    auto *duplex = find<platform::ChoiceBox>(u"Duplex"_s);
    duplex->setFocus();
    QTRY_VERIFY(duplex->hasFocus());
    Q_EMIT duplex->greyedPicked(duplex->findData(u"DuplexNoTumble"_s));
    const auto *bar = find<MessageBar>();
    QVERIFY2(bar->text().contains(u"“Paper Type: Heavy Paper” cannot be changed."_s) &&
                 bar->text().contains(u"Set by the administrator."_s) && bar->buttons().size() == 1,
             qPrintable(bar->text()));
    QVERIFY(!bar->text().contains(u"protects"_s));
    bar->buttons().first()->click();
    QCOMPARE(m_window->session()->ppd()->markedChoice(u"MediaType"_s), u"Thick"_s);
}

// On the page of a panel that is the printer's own the control is grey; where the choice comes about all the
// same it goes back, and the window says so.
void PolicyTest::panelKeepsWhatIsLocked()
{
    useFamily();
    PolicyPrintSystem system(m_system, {m_bundle}, lay(R"({"rules": [
        {"locked": {"PrintMode": "Private"}, "lockedPanels": ["color-settings-2"]}]})"));
    Extensions extensions({m_bundle});
    QVERIFY(showsDialog(system, extensions));
    QTRY_VERIFY(m_window->session());
    DialogSession *session = m_window->session();
    auto *book = find<PageBook>();
    const int mode = session->panelOfKeyword(u"PrintMode"_s);
    book->turn(mode + 1);
    auto *panel = session->panel(mode)->keyValueObject();
    QCOMPARE(panel->valueForKey(u"PrintMode"_s), u"Private"_s);
    QVERIFY(shows(u"Fixed: "_s));
    const auto *box = find<platform::ChoiceBox>(u"printModePopUp"_s);
    QVERIFY(box && !box->isEnabled());
    QVERIFY2(box->toolTip().contains(u"Set by the administrator."_s), qPrintable(box->toolTip()));
    panel->setValueForKey(u"Normal"_s, u"PrintMode"_s);
    QTRY_COMPARE(panel->valueForKey(u"PrintMode"_s), u"Private"_s);
    QVERIFY(find<MessageBar>()->text().contains(u"Set by the administrator."_s));

    const int colours = session->panelOfKeyword(u"ColorBalanceCyan"_s);
    book->turn(colours - mode);
    QVERIFY(shows(u"These settings cannot be changed. "_s));
    QVERIFY(!session->panel(colours)->panelView()->isEnabled());
    QVERIFY(!session->markChoice(u"ColorBalanceCyan"_s, u"1"_s));
    printButton()->click(); // without a code, which is asked for
    QVERIFY(find<MessageBar>()->text().contains(u"no code has been given"_s));
    find<MessageBar>()->buttons().first()->click(); // print without
    QTRY_VERIFY(shows(u"“Print Mode” has to be “Private”, with a code. Set by the administrator."_s));
    QVERIFY(m_system.submitted.isEmpty());
}

// The row of an option goes, and what is printed stays as the policy has it; a page that has nothing left is
// not there.
void PolicyTest::panelHidesOptions()
{
    useFamily();
    PolicyPrintSystem system(m_system, {m_bundle}, lay(R"({"rules": [{"defaults": {"SharpnessVRN": "2"},
        "hiddenOptions": ["Resolution", "SharpnessVRN", "TonerSave"], "hiddenPanels": ["print-mode"]}]})"));
    Extensions extensions({m_bundle});
    QVERIFY(showsDialog(system, extensions));
    QTRY_VERIFY(m_window->session());
    auto *book = find<PageBook>();
    book->turn(1);
    for (const auto &[name, isShown] :
         {std::pair(u"resolution"_s, false), std::pair(u"resolutionLabel"_s, false),
          std::pair(u"tonerSave"_s, false), std::pair(u"halftone"_s, true)})
        QVERIFY2(find<QWidget>(name)->isVisible() == isShown, qPrintable(name));
    find<QWidget>(u"resolution"_s)->show(); // as a panel might
    QVERIFY(!find<QWidget>(u"resolution"_s)->isVisible());
    book->turn(1);
    for (const QString &part : {u"Label"_s, u"Slider"_s, u"Value"_s, u"Neutral"_s}) {
        QVERIFY2(!find<QWidget>(u"sharpness"_s + part)->isVisible(), qPrintable(part));
        QVERIFY2(find<QWidget>(u"brightness"_s + part)->isVisible(), qPrintable(part));
    }
    QTest::keyClick(m_window.get(), Qt::Key_F, Qt::ControlModifier);
    auto *bar = find<SearchBar>();
    QVERIFY(bar);
    for (const auto &[word, isFound] : {std::pair(u"SharpnessVRN"_s, false), std::pair(u"PrintMode"_s, false),
                                        std::pair(u"BrightnessVRN"_s, true)}) {
        bar->field()->setText(word);
        QCOMPARE(bar->results()->count() > 0, isFound);
    }
    printButton()->click();
    QTRY_COMPARE(m_system.submitted.size(), 1);
    QCOMPARE(sentValue(m_system.submitted.first().options, u"SharpnessVRN"_s), u"2"_s);
}

QTEST_MAIN(PolicyTest)
#include "policy_test.moc"
