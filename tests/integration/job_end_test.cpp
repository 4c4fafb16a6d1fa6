// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/printing/job_follower.h"
#include "host/window/jobs/result_page.h"
#include "host/window/messages/message_bar.h"
#include "host/window/print_window.h"
#include "host/window/unavailable_page.h"
#include "host/window/waiting/login_dialog.h"
#include "platform/background.h"
#include "platform/unique_fd.h"
#include "tests/integration/batch_program.h"
#include "tests/support/child_process.h"
#include "tests/support/paths.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSemaphore>
#include <QTest>

#include <atomic>
#include <cups/cups.h>

#include <algorithm>
#include <array>
#include <netinet/in.h>
#include <sys/socket.h>

using namespace host;
using namespace Qt::StringLiterals;

namespace {

// Makes programs started by this process use another server for a while.
class OtherServer
{
public:
    explicit OtherServer(const QString &socket) : m_before(qgetenv("CUPS_SERVER"))
    {
        set(socket.toLocal8Bit());
    }
    ~OtherServer() { set(m_before); }
    OtherServer(const OtherServer &) = delete;
    OtherServer &operator=(const OtherServer &) = delete;

private:
    static void set(const QByteArray &socket)
    {
        qputenv("CUPS_SERVER", socket);
        cupsSetServer(socket.constData());
    }
    QByteArray m_before;
};

quint16 freePort()
{
    sockaddr_in address{};
    socklen_t size = sizeof address;
    auto *name = reinterpret_cast<sockaddr *>(&address);
    address.sin_family = AF_INET;
    const platform::UniqueFd socket(::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0));
    const bool isBound = ::bind(socket.get(), name, size) == 0;
    return isBound && ::getsockname(socket.get(), name, &size) == 0 ? ntohs(address.sin_port) : 0;
}

// The dialog with the document, without a bundle.
struct PlainDialog
{
    explicit PlainDialog(const QString &printer) : window(system, none, taskAt(printer)) {}
    static PrintTask taskAt(const QString &printer)
    {
        PrintTask task;
        task.files = {document};
        task.printer = printer;
        return task;
    }

    CupsPrintSystem system;
    Extensions none{QStringList()};
    PrintWindow window;
};

} // namespace

// The outcome of a job with errors on the way, as reported to a script and in a window, with a real print
// server.
class JobEndTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void serverStoppedBehindAnOpenDialog();
    void lostAnswers_data();
    void lostAnswers();
    void lostAnswerInTheWindow();
    void canceledWhileConnecting();
    void signalCancelsTheJob_data();
    void signalCancelsTheJob();
    void jobIsChangedFromTheResult();
    void forgottenJob_data();
    void forgottenJob();
    void loginInTheWindow();
    void loginIsNotAnswered();
    void loginIsRefusedOnce();
    void loginDialogGoesWithTheWindow();

private:
    // During its lifetime, all requests go through faulty_proxy.py, which makes some of them fail.
    ChildProcess faulty(const QString &fault, int number = 1, quint16 port = 0);
    int unfinishedJobs() const;
    // Pauses the queue "other" first, so that the job stays there.
    void printOnPaused(PrintWindow *window);

    PrivateCupsd m_server;
};

void JobEndTest::initTestCase()
{
    if (const QString missing = PrivateCupsd::missing(); !missing.isEmpty())
        QSKIP(qPrintable(missing));
    QVERIFY2(m_server.start(), qPrintable(m_server.problem()));
    m_server.provideHome();
    QVERIFY2(m_server.addQueue(u"office"_s, buildPath("/ppds/kelm880.ppd")), qPrintable(m_server.problem()));
    QVERIFY2(m_server.addQueue(u"other"_s, {}), qPrintable(m_server.problem()));
    QVERIFY(m_server.setDefaultQueue(u"office"_s));
}

void JobEndTest::serverStoppedBehindAnOpenDialog()
{
    CupsPrintSystem system;
    Extensions extensions(Extensions::installedBundles(buildPath("/bin")));
    PrintTask task;
    task.files = {document};
    task.printer = u"office"_s;
    PrintWindow window(system, extensions, task);
    PrintError error;
    QVERIFY(window.open(&error));
    window.show();
    QTRY_VERIFY(window.session() && window.session()->panels().count() == 3);
    QVERIFY(window.session()->markChoice(u"Duplex"_s, u"DuplexNoTumble"_s));

    m_server.stop();
    window.print();
    const auto *bar = window.findChild<MessageBar *>();
    QTRY_VERIFY(bar->isShowing());
    QCOMPARE(bar->kind(), MessageBar::Kind::Error);
    QVERIFY2(bar->text().contains(u"cannot be reached"_s), qPrintable(bar->text()));
    QVERIFY(!window.submission());

    QVERIFY2(m_server.start(), qPrintable(m_server.problem()));
    window.print();
    QTRY_VERIFY2_WITH_TIMEOUT(window.submission(), qPrintable(bar->text()), 15000);
    const auto job = m_server.waitForJob(window.submission()->job.id);
    QVERIFY(job);
    QCOMPARE(job->options.value(u"Duplex"_s), u"DuplexNoTumble"_s);
    QTRY_VERIFY_WITH_TIMEOUT(window.findChild<ResultPage *>()->text().contains(u"done"_s), 10000);
}

ChildProcess JobEndTest::faulty(const QString &fault, int number, quint16 port)
{
    const QString socket = port > 0 ? QString::number(port) : m_server.folder() + u"/faulty.sock"_s;
    QFile::remove(socket);
    QString problem;
    auto proxy = startChildProcess(u"python3"_s,
                                   {sourcePath("/tests/integration/faulty_proxy.py"), socket,
                                    m_server.socketPath(), fault, QString::number(number)},
                                   "ready", &problem);
    if (!proxy)
        qWarning() << problem;
    return proxy;
}

int JobEndTest::unfinishedJobs() const
{
    cups_job_t *jobs = nullptr;
    const int count = cupsGetJobs2(CUPS_HTTP_DEFAULT, &jobs, nullptr, 0, CUPS_WHICHJOBS_ACTIVE);
    cupsFreeJobs(count, jobs);
    return count;
}

void JobEndTest::lostAnswers_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<int>("documents");
    QTest::addColumn<QString>("outcome");
    QTest::addColumn<int>("code");
    QTest::addColumn<int>("printed");
    for (const char *fault : {"create-lost", "create-garbage", "create-negative", "create-nonsense",
                              "create-odd", "create-endless", "send-cut"})
        QTest::newRow(fault) << 1 << 1 << u"rejected"_s << 1 << 0;
    for (const char *fault : {"send-lost", "send-garbage", "send-truncated"})
        QTest::newRow(fault) << 1 << 1 << u"accepted"_s << 0 << 1;
    for (const char *fault : {"send-vanished", "send-forgotten", "send-foreign", "send-replaced"})
        QTest::newRow(fault) << 1 << 1 << u"unknown"_s << 5 << 1;
    QTest::newRow("send-dropped") << 1 << 1 << u"unknown"_s << 5 << 0;
    QTest::newRow("send-dropped, second of three") << 2 << 3 << u"rejected"_s << 1 << 0;
    QTest::newRow("send-lost, first of three") << 1 << 3 << u"rejected"_s << 1 << 0;
    QTest::newRow("send-lost, last of three") << 3 << 3 << u"accepted"_s << 0 << 1;
    QTest::newRow("none, three") << 1 << 3 << u"accepted"_s << 0 << 1;
}

void JobEndTest::lostAnswers()
{
    QFETCH(int, number);
    QFETCH(int, documents);
    const auto proxy = faulty(QString::fromLatin1(QTest::currentDataTag()).section(u',', 0, 0), number);
    QVERIFY(proxy);
    const QString large = write(m_server, u"large.txt"_s, QByteArray(200'000, 'x'));
    const QList<int> before = m_server.capturedJobs();
    QStringList words{u"--batch"_s, u"-d"_s, u"other"_s, u"-h"_s, m_server.folder() + u"/faulty.sock"_s};
    for (int i = 0; i < documents; ++i)
        words.append(large);
    const Outcome outcome = run(words);
    QTEST(outcome.json[u"outcome"_s].toString(), "outcome");
    QTEST(outcome.code, "code");
    const QString message = outcome.json[u"error"_s][u"message"_s].toString();
    QCOMPARE(message.isEmpty(), outcome.code == 0);
    for (const QString &nonsense : {u"uccess"_s, u"successful-ok"_s, u"No such file"_s})
        QVERIFY2(!message.contains(nonsense), qPrintable(message));
    QTRY_COMPARE(unfinishedJobs(), 0);
    QFETCH(int, printed);
    QTRY_COMPARE(m_server.capturedJobs().size() - before.size(), printed);
    if (outcome.code == 0)
        QCOMPARE(m_server.waitForJob(outcome.json[u"job"_s][u"id"_s].toInt())->data.size(),
                 documents * 200'000);
}

void JobEndTest::lostAnswerInTheWindow()
{
    auto proxy = faulty(u"send-vanished"_s);
    QVERIFY(proxy);
    const OtherServer scope(m_server.folder() + u"/faulty.sock"_s);
    PlainDialog dialog(u"other"_s);
    PrintWindow &window = dialog.window;
    PrintError error;
    QVERIFY(window.open(&error));
    QTRY_VERIFY(window.session());
    window.print();
    QTRY_VERIFY_WITH_TIMEOUT(window.submission(), 20000);
    QCOMPARE(window.submission()->outcome, Submission::Outcome::Unknown);
    QVERIFY(window.findChild<ResultPage *>()->text().contains(u"look at the queue before printing again"_s));
    QVERIFY(m_server.waitForNextJob());
}

// To a server whose queue of connections is full.
void JobEndTest::canceledWhileConnecting()
{
    sockaddr_in address{};
    socklen_t size = sizeof address;
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    auto *name = reinterpret_cast<sockaddr *>(&address);
    const auto newSocket = [] { return ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0); };
    const platform::UniqueFd listener(newSocket());
    QVERIFY(::bind(listener.get(), name, size) == 0 && ::listen(listener.get(), 0) == 0 &&
            ::getsockname(listener.get(), name, &size) == 0);
    std::array<platform::UniqueFd, 3> waiting;
    for (platform::UniqueFd &one : waiting) {
        one = platform::UniqueFd(newSocket());
        ::connect(one.get(), name, size);
    }
    const OtherServer scope(u"127.0.0.1:%1"_s.arg(ntohs(address.sin_port)));
    CupsPrintSystem system;
    JobRequest request;
    request.destination.queue = u"office"_s;
    QElapsedTimer clock;
    clock.start();
    const Submission submission = system.submit(request, {{}, [&] { return clock.hasExpired(500); }});
    QCOMPARE(submission.error.message, u"Printing was canceled."_s);
    QVERIFY2(clock.elapsed() < 5'000, qPrintable(QString::number(clock.elapsed())));
}

void JobEndTest::signalCancelsTheJob_data()
{
    QTest::addColumn<bool>("ofAnApplication");
    QTest::newRow("batch") << false;
    QTest::newRow("document of an application") << true;
}

void JobEndTest::signalCancelsTheJob()
{
    QFETCH(bool, ofAnApplication);
    const auto proxy = faulty(u"send-stalled"_s);
    QVERIFY(proxy);
    const QList<int> before = m_server.capturedJobs();
    QProcess process;
    QFile huge(write(m_server, u"huge.txt"_s, QByteArray(4'000'000, 'x')));
    QVERIFY(huge.open(QIODevice::ReadOnly));
    const QString socket = m_server.folder() + u"/faulty.sock"_s;
    if (ofAnApplication) {
        const OtherServer scope(socket);
        startSubmission(&process, u"other"_s, huge.handle());
    } else {
        process.start(program, {u"--batch"_s, u"-d"_s, u"other"_s, u"-h"_s, socket, huge.fileName()});
    }
    QTRY_COMPARE(unfinishedJobs(), 1);
    process.terminate();
    QVERIFY(process.waitForFinished(10000));
    QCOMPARE(process.exitStatus(), QProcess::CrashExit); // ended by the signal
    QVERIFY2(process.readAllStandardError().contains("canceled"), "nothing was told");
    QCOMPARE(unfinishedJobs(), 0);
    QCOMPARE(m_server.capturedJobs(), before);
}

void JobEndTest::printOnPaused(PrintWindow *window)
{
    QVERIFY(m_server.setPaused(u"other"_s, true));
    PrintError error;
    QVERIFY(window->open(&error));
    window->show();
    QTRY_VERIFY(window->session());
    window->print();
    QTRY_VERIFY(window->submission());
}

void JobEndTest::jobIsChangedFromTheResult()
{
    PlainDialog dialog(u"other"_s);
    PrintWindow &window = dialog.window;
    printOnPaused(&window);
    QVERIFY(window.submission());
    auto *result = window.findChild<ResultPage *>();
    const auto press = [result](const QString &text) {
        for (auto *button : result->findChildren<QPushButton *>()) {
            if (button->isVisible() && button->text().remove(u'&') == text)
                QTest::mouseClick(button, Qt::LeftButton);
        }
    };
    for (const auto &[button, state] : {std::pair(u"Hold"_s, u"on hold"_s),
                                        {u"Release"_s, u"the printer has been stopped"_s},
                                        {u"Cancel Job"_s, u"canceled"_s}}) {
        press(button);
        QTRY_VERIFY2_WITH_TIMEOUT(result->text().contains(state), qPrintable(result->text()), 10000);
    }
    QCOMPARE(unfinishedJobs(), 0);
    const int first = window.submission()->job.id;
    QVERIFY(m_server.setPaused(u"other"_s, false));
    press(u"Print Again"_s);
    QTRY_VERIFY(window.submission() && window.submission()->job.id > first);
    QVERIFY(m_server.waitForJob(window.submission()->job.id));
    const QList<QLabel *> labels = result->findChildren<QLabel *>();
    QVERIFY(std::any_of(labels.begin(), labels.end(), [first](const QLabel *label) {
        return label->isVisible() && label->text().contains(u"Job %1: canceled"_s.arg(first));
    }));
}

// An administrator removes it from the history while the dialog follows it.
void JobEndTest::forgottenJob_data()
{
    QTest::addColumn<QString>("fault"); // of a proxy; none if the server itself loses the job
    QTest::newRow("forgotten") << QString();
    QTest::newRow("gone") << u"look-gone"_s;
}

void JobEndTest::forgottenJob()
{
    QFETCH(QString, fault);
    const auto proxy =
        fault.isNull() ? ChildProcess() : faulty(fault, 2); // the first query follows the documents
    std::optional<OtherServer> scope;
    if (proxy)
        scope.emplace(m_server.folder() + u"/faulty.sock"_s);
    PlainDialog dialog(u"other"_s);
    PrintWindow &window = dialog.window;
    printOnPaused(&window);
    QVERIFY(window.submission());
    auto *follower = window.findChild<JobFollower *>();
    if (!proxy) {
        QVERIFY(follower->isFollowing());
        QCOMPARE(QProcess::execute(u"cancel"_s, {u"-a"_s, u"-x"_s, u"other"_s}), 0);
    }
    const QString text = u"no longer knows it. It may have been printed; look at the printer."_s;
    QTRY_VERIFY_WITH_TIMEOUT(window.findChild<ResultPage *>()->text().endsWith(text), 10000);
    QVERIFY(!follower->isFollowing());
    scope.reset();
    QCOMPARE(QProcess::execute(u"cancel"_s, {u"-a"_s, u"-x"_s, u"other"_s}), 0);
    QVERIFY(m_server.setPaused(u"other"_s, false));
}

void JobEndTest::loginInTheWindow()
{
    const auto proxy = faulty(u"login"_s);
    QVERIFY(proxy);
    const OtherServer scope(m_server.folder() + u"/faulty.sock"_s);
    CupsPrintSystem system;
    Extensions none({});
    PrintTask task;
    task.files = {document};
    task.printer = u"office"_s;
    PrintError error;
    {
        PrintWindow window(system, none, task); // the login prompt is not answered
        QVERIFY(window.open(&error));
        QTRY_VERIFY(window.findChild<UnavailablePage *>()->isVisibleTo(&window));
        QVERIFY(!window.session()); // instead of one without the printer's settings
    }
    QList<bool> asked;
    system.setLoginPrompt([&](const LoginQuestion &question) {
        asked.append(question.again);
        return std::optional<Login>({u"anna"_s, question.again ? u"secret"_s : u"wrong"_s});
    });
    PrintWindow window(system, none, task);
    QVERIFY(window.open(&error));
    QTRY_VERIFY(window.session() && window.session()->ppd());
    window.print();
    QTRY_VERIFY2_WITH_TIMEOUT(window.submission(), qPrintable(window.findChild<MessageBar *>()->text()),
                              15000);
    QVERIFY(m_server.waitForJob(window.submission()->job.id));
    QCOMPARE(asked, QList<bool>({false, true})); // once, and again after the wrong answer
    cupsSetUser(nullptr);
}

void JobEndTest::loginIsNotAnswered()
{
    const auto proxy = faulty(u"login"_s);
    QVERIFY(proxy);
    const QList<int> before = m_server.capturedJobs();
    const Outcome outcome =
        run({u"--batch"_s, u"-d"_s, u"office"_s, u"-h"_s, m_server.folder() + u"/faulty.sock"_s, document});
    QCOMPARE(outcome.code, 1);
    QCOMPARE(outcome.json[u"error"_s][u"code"_s].toString(), u"not-authorised"_s);
    QCOMPARE(unfinishedJobs(), 0);
    QCOMPARE(m_server.capturedJobs(), before);
}

// The refusal applies to all requests in progress.
void JobEndTest::loginIsRefusedOnce()
{
    const auto proxy = faulty(u"login"_s);
    QVERIFY(proxy);
    const OtherServer scope(m_server.folder() + u"/faulty.sock"_s);
    CupsPrintSystem system;
    std::atomic<int> asked = 0;
    QSemaphore release;
    system.setLoginPrompt([&](const LoginQuestion &) {
        ++asked;
        release.acquire();
        return std::optional<Login>();
    });
    Destination office;
    office.queue = u"office"_s;
    std::atomic<int> refused = 0;
    for (int i = 0; i < 2; ++i) {
        platform::Background::start(
            [&] {
                PrintError error;
                refused += !system.ppd(office, &error) && error.kind == PrintError::Kind::NotAuthorised;
            },
            this, [] {});
    }
    QByteArray said;
    QTRY_VERIFY((said += proxy->readAll()).count("login wanted") == 2);
    release.release(2);
    QTRY_COMPARE(refused.load(), 2);
    QCOMPARE(asked.load(), 1);
    QTRY_VERIFY(!platform::Background::isUnderWay());
}

void JobEndTest::loginDialogGoesWithTheWindow()
{
    const quint16 port = freePort();
    const auto proxy = faulty(u"login"_s), inClear = faulty(u"login"_s, 1, port);
    QVERIFY(proxy && port > 0 && inClear);
    CupsPrintSystem system;
    Extensions none({});
    PrintTask task;
    task.files = {document};
    task.printer = u"office"_s;
    PrintError error;
    for (const bool isRemote : {false, true}) { // and not encrypted
        // 0.0.0.0 reaches this machine, but counts as an address of the network.
        const OtherServer scope(isRemote ? u"0.0.0.0:%1"_s.arg(port) : m_server.folder() + u"/faulty.sock"_s);
        auto window = std::make_unique<PrintWindow>(system, none, task);
        system.setLoginPrompt([parent = QPointer<QWidget>(window.get())](const LoginQuestion &question) {
            return askForLogin(question, parent);
        });
        QVERIFY(window->open(&error));
        window->show();
        QTRY_VERIFY(window->findChild<QDialog *>());
        const auto *dialog = window->findChild<QDialog *>();
        bool isWarned = false;
        for (const QLabel *label : dialog->findChildren<QLabel *>())
            isWarned |= label->text().contains(u"without encryption"_s);
        QCOMPARE(isWarned, isRemote);
        const auto fields = dialog->findChildren<QLineEdit *>();
        if (isRemote) {
            fields.first()->setText(u"anna"_s);
            QTest::keyClicks(fields.last(), u"secret"_s);
            QTest::keyClick(fields.last(), Qt::Key_Return);
            QTRY_VERIFY(window->session());
        }
        window.reset();
        QTRY_VERIFY(!platform::Background::isUnderWay());
    }
    cupsSetUser(nullptr);
}

QTEST_MAIN(JobEndTest)
#include "job_end_test.moc"
