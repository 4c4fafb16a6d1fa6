// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/support/hostile_program.h"
#include "tests/support/paths.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

#include <cstdlib>
#include <fcntl.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

const QString program = buildPath("/bin/kelmar-print");
const QString ppds = buildPath("/ppds/");

struct Outcome
{
    int code = -1;
    QByteArray out, err;
};

Outcome run(const QStringList &words, const QByteArray &input = {})
{
    QProcess process;
    process.start(program, words);
    process.write(input);
    process.closeWriteChannel();
    if (!process.waitForFinished(20000)) {
        process.kill();
        process.waitForFinished();
        return {};
    }
    return {process.exitCode(), process.readAllStandardOutput(), process.readAllStandardError()};
}

} // namespace

// The program as called by a user, with the PPDs of the family and no print server.
class CommandLineTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void values_data();
    void values();
    void secretsAreNotRepeated_data();
    void secretsAreNotRepeated();
    void valuesFromElsewhere();
    void askedOnTheTerminal();
    void endlessFilesAreRefused_data();
    void endlessFilesAreRefused();
    void bundleOfOthersIsNotLoaded_data();
    void bundleOfOthersIsNotLoaded();
    void documentsAreConfined_data();
    void documentsAreConfined();
    void interruptedConversionLeavesNothing_data();
    void interruptedConversionLeavesNothing();
    void nothingReachesTheTerminalRaw();
    void policyIsObeyed_data();
    void policyIsObeyed();
    void displayThatIsGone_data();
    void displayThatIsGone();

private:
    QString write(const QString &name, const QByteArray &contents);
    QTemporaryDir m_folder;
};

void CommandLineTest::initTestCase()
{
    QVERIFY(m_folder.isValid());
    qputenv("CUPS_SERVER", "/nowhere/cups.sock");
}

QString CommandLineTest::write(const QString &name, const QByteArray &contents)
{
    QFile file(m_folder.filePath(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(contents) != contents.size())
        qFatal("%s", qPrintable(file.errorString()));
    return file.fileName();
}

void CommandLineTest::values_data()
{
    QTest::addColumn<QString>("model");
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("values");   // values with the same result
    QTest::addColumn<QByteArray>("error"); // empty if they are accepted
    const QString advanced = u"advancedColorSettingsManager."_s;
    const QString onOff = advanced + u"applyToDeviceColorOnly"_s;
    const QString intent = advanced + u"renderingIntent"_s;
    const auto row = [](const char *name, const QString &key, const QString &values, const char *error = "",
                        const char *model = "kelm880") {
        QTest::newRow(name) << QString::fromLatin1(model) << key << values << QByteArray(error);
    };
    row("on and off", onOff, u"True yes ENABLED 2 -1 False no 0 None"_s);
    row("no switch", onOff, u"on off 01x Yesterday 1.5"_s, "takes True or False.");
    row("number", intent, u"0 3 4294967295"_s);
    row("no number", intent, u"-1 99999999999 4294967296 0x1 1.0 +1 three"_s,
        "takes a whole number from 0 to 4294967295.");
    row("code", u"privatePassword"_s, u"00000 12345"_s);
    row("no code", u"privatePassword"_s, u"123 1234567 abcde"_s, "takes 5 digits.");
    row("model without passwords", u"privatePassword"_s, u"00000 12345"_s, "This printer has no option",
        "kelo110");
    row("priority", u"job-priority"_s, u"1 75 100"_s);
    row("no priority", u"job-priority"_s, u"0 101 900 -5 high"_s,
        "job-priority takes a number from 1 to 100.\n");
    row("hold", u"Job-Hold-Until"_s, u"no-hold evening indefinite 20:15 9:30 09:30:15"_s);
    row("no hold", u"job-hold-until"_s, u"frob 25:00 12 Evening2"_s,
        "job-hold-until takes no-hold, day-time, ");
    row("no such key", u"NoSuchKey"_s, u"1"_s, "“NoSuchKey”. --list-options lists the settings.");
}

void CommandLineTest::values()
{
    QFETCH(QString, model);
    QFETCH(QString, key);
    QFETCH(QString, values);
    QFETCH(QByteArray, error);
    for (const QString &value : values.split(u' ')) {
        const Outcome outcome =
            run({u"--summary"_s, u"--ppd"_s, ppds + model + u".ppd"_s, u"--set"_s, key + u'=' + value});
        QVERIFY2(outcome.code == (error.isEmpty() ? 0 : 2), qPrintable(value));
        QVERIFY2(outcome.err.contains(error), outcome.err.constData());
    }
}

void CommandLineTest::secretsAreNotRepeated_data()
{
    QTest::addColumn<QString>("words");
    QTest::newRow("no equals sign") << u"--set privatePassword:86419"_s;
    QTest::newRow("digit") << u"--set DINDigit1=86419"_s;
    QTest::newRow("code in another option") << u"--set-file PrintMode=FILE"_s;
    QTest::newRow("code in another setting") << u"--set-file copies=FILE"_s;
    QTest::newRow("code in place of its file") << u"--set-file privatePassword=86419"_s;
    QTest::newRow("as an option") << u"-p86419"_s;
    QTest::newRow("asked for") << u"--ask privatePassword=86419"_s;
}

void CommandLineTest::secretsAreNotRepeated()
{
    QFETCH(QString, words);
    words.replace(u"FILE"_s, write(u"code"_s, "86419\n"));
    const Outcome outcome =
        run(QStringList({u"--summary"_s, u"--ppd"_s, ppds + u"kelm880.ppd"_s}) + words.split(u' '));
    QCOMPARE(outcome.code, 2);
    for (const char *part : {"86419", "'8'", "8, 6"})
        QVERIFY2(!outcome.err.contains(part), outcome.err.constData());
    QVERIFY(outcome.err.size() > 20);
    QVERIFY(!words.startsWith(u"-p"_s) || outcome.err.contains("--help"));
}

void CommandLineTest::valuesFromElsewhere()
{
    const QStringList list{u"--summary"_s, u"--ppd"_s, ppds + u"kelm880.ppd"_s};
    const Outcome two =
        run(list + QStringList({u"--set-file"_s, u"ColorType=-"_s, u"--set-file"_s, u"PrintMode=-"_s}),
            "Mono\r\nPrivate\nrest");
    QCOMPARE(two.code, 0);
    QVERIFY2(two.out.contains("Black and White") && two.out.contains("Private"), two.out.constData());
    // there is no line to read
    QCOMPARE(run(list + QStringList({u"--set-file"_s, u"ColorType=-"_s})).code, 2);
    QCOMPARE(run({u"--batch"_s, u"--set-file"_s, u"ColorType=-"_s}, "Mono\n").code, 2); // and no document
    // Codes that were set before are not listed either.
    const Outcome listed = run({u"--list-options"_s, u"--ppd"_s, ppds + u"kelm880.ppd"_s, u"--set"_s,
                                u"PrintMode=Private"_s, u"--set"_s, u"privatePassword=99999"_s});
    QVERIFY2(listed.out.contains("DINDigit1/") && !listed.out.contains("*9"), listed.out.constData());
}

void CommandLineTest::askedOnTheTerminal()
{
    const int terminal = posix_openpt(O_RDWR | O_NOCTTY);
    QVERIFY(terminal >= 0 && grantpt(terminal) == 0 && unlockpt(terminal) == 0);
    const QByteArray name(ptsname(terminal));
    QProcess process;
    process.setChildProcessModifier([&name] {
        setsid();
        ioctl(open(name.constData(), O_RDWR), TIOCSCTTY, 0);
    });
    process.start(program, {u"--summary"_s, u"--ppd"_s, ppds + u"kelm880.ppd"_s, u"--set"_s,
                            u"PrintMode=Private"_s, u"--ask"_s, u"privatePassword"_s});
    QVERIFY(process.waitForStarted());
    QByteArray shown(256, '\0');
    shown.resize(read(terminal, shown.data(), 256)); // returns with the prompt
    QVERIFY2(shown.contains("privatePassword"), shown.constData());
    QCOMPARE(::write(terminal, "86419\n", 6), 6);
    QVERIFY(process.waitForFinished(20000));
    QCOMPARE(process.exitCode(), 0);
    QByteArray echoed(256, '\0');
    echoed.resize(std::max<ssize_t>(0, read(terminal, echoed.data(), 256)));
    QVERIFY2(!echoed.contains('8'), echoed.constData());
    close(terminal);
}

void CommandLineTest::endlessFilesAreRefused_data()
{
    QTest::addColumn<QStringList>("words");
    QTest::newRow("value") << QStringList(
        {u"--ppd"_s, ppds + u"kelm880.ppd"_s, u"--set-file"_s, u"privatePassword=/dev/zero"_s});
    QTest::newRow("PPD") << QStringList({u"--ppd"_s, u"/dev/zero"_s});
    QTest::newRow("large PPD") << QStringList({u"--ppd"_s, m_folder.filePath(u"large.ppd"_s)});
    QTest::newRow("packed PPD") << QStringList({u"--ppd"_s, m_folder.filePath(u"packed.ppd.gz"_s)});
}

void CommandLineTest::endlessFilesAreRefused()
{
    QFETCH(QStringList, words);
    const QString large = write(u"large.ppd"_s, "*PPD-Adobe: \"4.3\"\n");
    QVERIFY(QFile::resize(large, 1LL << 30)); // sparse
    if (words.last().endsWith(u".gz"_s))
        QCOMPARE(QProcess::execute(
                     u"sh"_s, {u"-c"_s, u"head -c 50000000 /dev/zero | gzip -1 >\"$0\""_s, words.last()}),
                 0);
    const Outcome outcome = run(QStringList(u"--summary"_s) + words);
    QVERIFY(outcome.code == 1 || outcome.code == 2);
    QVERIFY(!outcome.err.isEmpty());
}

void CommandLineTest::bundleOfOthersIsNotLoaded_data()
{
    QTest::addColumn<QString>("path"); // in the bundle
    QTest::addColumn<int>("mode");
    QTest::newRow("folder") << u"."_s << 0777;
    QTest::newRow("folder around it") << u".."_s << 0777;
    QTest::newRow("folder above that") << u"../.."_s << 0777;
    QTest::newRow("code") << u"libOrbM880.so"_s << 0664;
    QTest::newRow("string table") << u"strings/OrbM880_de.qm"_s << 0646;
}

void CommandLineTest::bundleOfOthersIsNotLoaded()
{
    QFETCH(QString, path);
    QFETCH(int, mode);
    const QTemporaryDir folder;
    QVERIFY(QDir(folder.path()).mkdir(u"lib"_s));
    const QString bundle = folder.filePath(u"lib/OrbM880.bundle"_s);
    QCOMPARE(QProcess::execute(u"cp"_s, {u"-r"_s, buildPath("/bin/OrbM880.bundle"), bundle}), 0);
    const QStringList words{u"--list-options"_s, u"--ppd"_s, ppds + u"kelm880.ppd"_s, u"--bundle"_s, bundle};
    const Outcome before = run(words);
    QVERIFY2(before.out.contains("departmentCode"), before.err.constData());
    const QByteArray part = QFile::encodeName(bundle + u'/' + path);
    QCOMPARE(chmod(part.constData(), static_cast<mode_t>(mode)), 0);
    const Outcome outcome = run(words);
    QVERIFY(!outcome.out.contains("departmentCode"));
    QVERIFY2(outcome.err.contains("other users may write to it"), outcome.err.constData());
}

void CommandLineTest::documentsAreConfined_data()
{
    QTest::addColumn<bool>("areProgramsHostile"); // otherwise the document is
    QTest::newRow("document") << false;
    QTest::newRow("programs") << true;
}

void CommandLineTest::documentsAreConfined()
{
    QFETCH(const bool, areProgramsHostile);
    const QStringList programs{u"gs"_s, u"qpdf"_s};
    const QTemporaryDir folder;
    QVERIFY(QDir(folder.path()).mkdir(u"tmp"_s));
    HostileProgram hostile(folder.filePath(u"tmp"_s));
    const QByteArray path = qgetenv("PATH");
    for (const QString &name : programs) {
        const QString real = QStandardPaths::findExecutable(name);
        if (real.isEmpty())
            QSKIP("ghostscript or qpdf is not installed");
        hostile.standIn(folder.filePath(name), real);
    }
    if (areProgramsHostile)
        qputenv("PATH", QFile::encodeName(folder.path()) + ':' + path);
    const QString document =
        write(u"hostile.ps"_s, areProgramsHostile ? "%!PS\nshowpage\n" : hostile.postScript());
    const QString target = folder.filePath(u"out.pdf"_s);
    const Outcome outcome =
        run({u"--batch"_s, u"--ppd"_s, ppds + u"kelm880.ppd"_s, u"--output"_s, target, document});
    qputenv("PATH", path);
    QVERIFY2(outcome.code == 0, outcome.err);
    QTRY_COMPARE(hostile.damage(), QStringList());
    QProcess counter;
    counter.start(u"qpdf"_s, {u"--show-npages"_s, target});
    QVERIFY(counter.waitForFinished());
    QCOMPARE(counter.readAllStandardOutput().trimmed(), "1"); // more if any attempt succeeded
}

void CommandLineTest::interruptedConversionLeavesNothing_data()
{
    QTest::addColumn<QString>("stuck");
    QTest::newRow("while pages are counted") << u"pdfinfo"_s;
    QTest::newRow("while the file is made") << u"qpdf"_s;
}

void CommandLineTest::interruptedConversionLeavesNothing()
{
    QFETCH(const QString, stuck);
    const QTemporaryDir folder;
    const QString temporary = folder.filePath(u"tmp"_s);
    QVERIFY(QDir().mkdir(temporary));
    QFile standIn(folder.filePath(stuck));
    QVERIFY(standIn.open(QIODevice::WriteOnly) && standIn.write("#!/bin/sh\nexec sleep 100\n") > 0);
    standIn.setPermissions(QFile::ReadOwner | QFile::ExeOwner | QFile::ReadOther | QFile::ExeOther);
    standIn.close();
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"TMPDIR"_s, temporary);
    environment.insert(u"PATH"_s, folder.path() + u':' + environment.value(u"PATH"_s));
    process.setProcessEnvironment(environment);
    process.start(program, {u"--batch"_s, u"--ppd"_s, ppds + u"kelm880.ppd"_s, u"-P"_s, u"1"_s, u"--output"_s,
                            folder.filePath(u"out.pdf"_s), sourcePath("/demo/note.txt")});
    const auto folders = [&] { return QDir(temporary).entryList({u"kelmar-print-*"_s}, QDir::Dirs); };
    QStringList known;
    QElapsedTimer unchanged;
    const auto isStuck = [&] {
        if (std::exchange(known, folders()) != known)
            unchanged.start();
        return !known.isEmpty() && unchanged.hasExpired(300);
    };
    QTRY_VERIFY_WITH_TIMEOUT(isStuck(), 20000);
    process.terminate();
    QVERIFY(process.waitForFinished(10000));
    QCOMPARE(process.exitStatus(), QProcess::CrashExit); // ended by the signal
    QCOMPARE(folders(), QStringList());
}

void CommandLineTest::nothingReachesTheTerminalRaw()
{
    const QString ppd =
        write(u"evil.ppd"_s, "*PPD-Adobe: \"4.3\"\n*LanguageEncoding: UTF-8\n*ModelName: \"x\"\n"
                             "*OpenUI *Evil/A<1B>]0;owned<07>B: PickOne\n*DefaultEvil: One\n"
                             "*Evil One/C<0A>D<E280AE>E<C29B>31m: \"\"\n*CloseUI: *Evil\n");
    for (const char *what : {"--list-options", "--summary"}) {
        for (const QStringList &form : {QStringList(), QStringList(u"--json"_s)}) {
            const Outcome outcome = run(QStringList{QString::fromLatin1(what), u"--ppd"_s, ppd} + form);
            QCOMPARE(outcome.code, 0);
            for (const char *raw : {"\x1b", "\x07", "\nD", "\u202e", "\u009b"})
                QVERIFY2(!outcome.out.contains(raw), outcome.out.constData());
            QVERIFY2(outcome.out.contains(form.isEmpty() ? "A\\x1b]0;" : "A\\u001b]0;"),
                     outcome.out.constData());
        }
    }
    const Outcome refused = run({u"--summary"_s, u"--ppd"_s, ppd, u"--set"_s, u"Evil=\x1b[31m"_s});
    QCOMPARE(refused.code, 2);
    QVERIFY2(!refused.err.contains('\x1b'), refused.err.constData());
}

void CommandLineTest::policyIsObeyed_data()
{
    QTest::addColumn<QByteArray>("policy");
    QTest::addColumn<QString>("words");
    QTest::addColumn<int>("code");
    QTest::addColumn<QByteArray>("said");
    const QByteArray locked = R"({"contact": "IT", "rules": [
        {"locked": {"PrintMode": "Private"}, "lockedPanels": ["color-settings-2"]}]})";
    QTest::newRow("in force") << locked << QString() << 0 << "Private"_ba;
    QTest::newRow("the same") << locked << u"--set PrintMode=Private"_s << 0 << "Private"_ba;
    QTest::newRow("another choice") << locked << u"--set PrintMode=Normal"_s << 1
                                    << " has to be “Private”. Set by the administrator (IT)."_ba;
    QTest::newRow("passed on") << locked << u"-o PrintMode=Normal"_s << 1 << "has to be “Private”."_ba;
    QTest::newRow("on a locked panel") << locked << u"--set ColorBalanceCyan=1"_s << 1
                                       << "cannot be changed here. Set by the administrator (IT)."_ba;
    QTest::newRow("broken")
        << "{\n  \"rules\": [}"_ba << QString() << 0
        << "not in force, since they cannot be read. Please tell your administrator: FILE, "
           "line 2, column 13: "_ba;
}

// An unknown key disables the whole policy, and an invalid policy does not prevent printing.
void CommandLineTest::policyIsObeyed()
{
    QFETCH(QByteArray, policy);
    QFETCH(QString, words);
    QFETCH(int, code);
    QFETCH(QByteArray, said);
    const QString file = write(u"policy.json"_s, policy);
    qputenv("KELMAR_PRINT_POLICY", file.toLocal8Bit());
    const Outcome outcome = run(QStringList{u"--summary"_s, u"--ppd"_s, ppds + u"kelm880.ppd"_s} +
                                words.split(u' ', Qt::SkipEmptyParts));
    qunsetenv("KELMAR_PRINT_POLICY");
    QCOMPARE(outcome.code, code);
    const QByteArray all = outcome.out + outcome.err;
    QVERIFY2(all.contains(said.replace("FILE", file.toLocal8Bit())), all.constData());
}

void CommandLineTest::displayThatIsGone_data()
{
    QTest::addColumn<QByteArray>("variable");
    QTest::addColumn<QByteArray>("display");
    QTest::addColumn<QString>("words");
    QTest::addColumn<int>("code");
    const QByteArray x("DISPLAY"), wayland("WAYLAND_DISPLAY");
    QTest::newRow("X, window") << x << ":4711"_ba << QString() << 1;
    QTest::newRow("Wayland, window") << wayland << "kelmar-nowhere"_ba << QString() << 1;
    QTest::newRow("X, picture") << x << ":4711"_ba << u"--screenshot FILE"_s << 0;
    QTest::newRow("Wayland, picture") << wayland << "kelmar-nowhere"_ba << u"--screenshot FILE"_s << 0;
    QTest::newRow("platform for windows, no window") << "QT_QPA_PLATFORM"_ba
                                                     << "xcb"_ba << u"--summary"_s << 0;
    QTest::newRow("platform by name") << x << ":4711"_ba << u"-platform xcb"_s << 1;
}

void CommandLineTest::displayThatIsGone()
{
    QFETCH(QByteArray, variable);
    QFETCH(QByteArray, display);
    QFETCH(QString, words);
    QFETCH(int, code);
    const QString picture = m_folder.filePath(u"picture.png"_s);
    QFile::remove(picture);
    const QByteArray platform = qgetenv("QT_QPA_PLATFORM");
    for (const char *other : {"QT_QPA_PLATFORM", "DISPLAY", "WAYLAND_DISPLAY"})
        qunsetenv(other);
    qputenv(variable.constData(), display);
    const Outcome outcome = run(QStringList{u"--ppd"_s, ppds + u"kelm880.ppd"_s} +
                                words.replace(u"FILE"_s, picture).split(u' ', Qt::SkipEmptyParts));
    qunsetenv(variable.constData());
    qputenv("QT_QPA_PLATFORM", platform);
    QCOMPARE(outcome.code, code);
    QCOMPARE(QFile::exists(picture), code == 0 && words.startsWith(u"--screenshot"_s));
    if (code != 0)
        QVERIFY2(outcome.err.startsWith("kelmar-print: ") && outcome.err.contains("isplay") &&
                     outcome.err.count('\n') == 1,
                 outcome.err.constData());
}

QTEST_GUILESS_MAIN(CommandLineTest)
#include "command_line_test.moc"
