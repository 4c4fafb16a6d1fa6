// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/support/private_cupsd.h"
#include "tests/support/paths.h"

#include <QDeadlineTimer>
#include <QDir>
#include <QEventLoop>
#include <QFile>
#include <QFileInfo>
#include <QFileSystemWatcher>
#include <QStandardPaths>
#include <QTest>
#include <QTimer>

#include <cups/cups.h>

#include <algorithm>
#include <csignal>
#include <memory>
#include <sys/prctl.h>

using namespace Qt::StringLiterals;

namespace {

const QString script = sourcePath("/scripts/lib/private-cupsd.sh");
constexpr int startTime = 10000; // milliseconds; the server takes about 100
constexpr int stopTime = 10000;  // about 2000, since cupsd checks for signals once a second
constexpr int clientTime = 10000;

struct HttpClose
{
    void operator()(http_t *http) const { httpClose(http); }
};

bool answers(const QString &socketPath)
{
    return std::unique_ptr<http_t, HttpClose>(httpConnect2(socketPath.toUtf8().constData(), 0, nullptr,
                                                           AF_UNSPEC, HTTP_ENCRYPTION_IF_REQUESTED, 1, 500,
                                                           nullptr)) != nullptr;
}

QByteArray contents(const QString &file)
{
    QFile f(file);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

QMap<QString, QString> parsedOptions(const QByteArray &text)
{
    cups_option_t *options = nullptr;
    const int count = cupsParseOptions(text.constData(), 0, &options);
    QMap<QString, QString> result;
    for (int i = 0; i < count; ++i)
        result.insert(QString::fromUtf8(options[i].name), QString::fromUtf8(options[i].value));
    cupsFreeOptions(count, options);
    return result;
}

} // namespace

PrivateCupsd::PrivateCupsd()
{
    m_server.setProcessChannelMode(QProcess::MergedChannels);
    m_server.setChildProcessModifier([] { ::prctl(PR_SET_PDEATHSIG, SIGTERM); });
}

PrivateCupsd::~PrivateCupsd()
{
    stop();
}

QString PrivateCupsd::missing()
{
    const QStringList places{u"/usr/sbin"_s, u"/usr/bin"_s, u"/usr/local/sbin"_s, u"/usr/local/bin"_s};
    for (const QString &program : {u"cupsd"_s, u"lpadmin"_s, u"bash"_s}) {
        if (QStandardPaths::findExecutable(program, places).isEmpty() &&
            QStandardPaths::findExecutable(program).isEmpty())
            return program + u" is not installed"_s;
    }
    return {};
}

bool PrivateCupsd::start()
{
    if (isRunning())
        return true;
    m_server.start(script, {u"run"_s, m_folder.path()});
    const bool up = QTest::qWaitFor(
        [this] { return m_server.state() == QProcess::NotRunning || answers(socketPath()); }, startTime);
    if (!up || !isRunning()) {
        m_problem = u"cupsd did not start: "_s + QString::fromUtf8(m_server.readAll()) +
                    QString::fromUtf8(contents(m_folder.filePath(u"log/error_log"_s)));
        stop();
        return false;
    }
    const QByteArray address = socketPath().toUtf8();
    qputenv("CUPS_SERVER", address);
    cupsSetServer(address.constData());
    return true;
}

void PrivateCupsd::stop()
{
    if (isRunning()) {
        m_server.terminate();
        if (!m_server.waitForFinished(stopTime)) {
            m_server.kill();
            m_server.waitForFinished();
        }
    }
    QFile::remove(socketPath());
}

void PrivateCupsd::provideHome() const
{
    QDir(folder()).mkpath(u".cups"_s);
    qputenv("HOME", folder().toLocal8Bit());
    qputenv("CUPS_SERVERROOT", m_folder.filePath(u".cups"_s).toLocal8Bit());
}

bool PrivateCupsd::isRunning() const
{
    return m_server.state() != QProcess::NotRunning;
}

QString PrivateCupsd::socketPath() const
{
    return m_folder.filePath(u"cups.sock"_s);
}

bool PrivateCupsd::addQueue(const QString &name, const QString &ppdFile, const QString &deviceUri)
{
    return runClient(
        script, {u"add-queue"_s, m_folder.path(), name, ppdFile.isEmpty() ? u"-"_s : ppdFile, deviceUri});
}

bool PrivateCupsd::setDefaultQueue(const QString &name)
{
    return runClient(u"lpadmin"_s, {u"-d"_s, name});
}

bool PrivateCupsd::setJobDefault(const QString &queue, const QString &option, const QString &value)
{
    return runClient(u"lpadmin"_s, {u"-p"_s, queue, u"-o"_s, option + u"-default="_s + value});
}

bool PrivateCupsd::setAccepting(const QString &name, bool accepting)
{
    return runClient(accepting ? u"cupsaccept"_s : u"cupsreject"_s, {name});
}

bool PrivateCupsd::setPaused(const QString &name, bool paused)
{
    return runClient(paused ? u"cupsdisable"_s : u"cupsenable"_s, {name});
}

bool PrivateCupsd::runClient(const QString &program, const QStringList &arguments)
{
    QProcess client;
    client.setProcessChannelMode(QProcess::MergedChannels);
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"CUPS_SERVER"_s, socketPath());
    environment.insert(u"PATH"_s, environment.value(u"PATH"_s) + u":/usr/sbin"_s);
    client.setProcessEnvironment(environment);
    client.start(QFileInfo(program).isAbsolute()
                     ? program
                     : QStandardPaths::findExecutable(program, environment.value(u"PATH"_s).split(u':')),
                 arguments);
    const bool ended = client.waitForFinished(clientTime);
    if (ended && client.exitStatus() == QProcess::NormalExit && client.exitCode() == 0)
        return true;
    m_problem = program + u": "_s + (ended ? QString::fromUtf8(client.readAll()) : client.errorString());
    return false;
}

QList<int> PrivateCupsd::capturedJobs() const
{
    QList<int> ids;
    for (const QString &name : QDir(jobsFolder()).entryList({u"*.args"_s}, QDir::Files))
        ids.append(QFileInfo(name).completeBaseName().toInt());
    std::sort(ids.begin(), ids.end());
    return ids;
}

template <typename Condition>
bool PrivateCupsd::waitForCapture(Condition arrived, int milliseconds) const
{
    // Starts watching before the first check, so that no arrival in between is missed.
    QFileSystemWatcher watcher({jobsFolder()});
    const QDeadlineTimer deadline(milliseconds);
    while (!arrived()) {
        if (deadline.hasExpired())
            return false;
        QEventLoop loop;
        QObject::connect(&watcher, &QFileSystemWatcher::directoryChanged, &loop, &QEventLoop::quit);
        QTimer::singleShot(deadline.remainingTime(), &loop, &QEventLoop::quit);
        loop.exec();
    }
    return true;
}

std::optional<CapturedJob> PrivateCupsd::waitForJob(int id, int milliseconds)
{
    if (!waitForCapture([this, id] { return capturedJobs().contains(id); }, milliseconds))
        return {};
    return handOut(id);
}

std::optional<CapturedJob> PrivateCupsd::waitForNextJob(int milliseconds)
{
    QList<int> fresh;
    const auto arrived = [this, &fresh] {
        fresh = capturedJobs();
        fresh.removeIf([this](int id) { return m_handedOut.contains(id); });
        return !fresh.isEmpty();
    };
    if (!waitForCapture(arrived, milliseconds))
        return {};
    return handOut(fresh.first());
}

CapturedJob PrivateCupsd::handOut(int id)
{
    m_handedOut.insert(id);
    const QString base = jobsFolder() + u'/' + QString::number(id);
    const QList<QByteArray> arguments = contents(base + u".args"_s).split('\0');
    CapturedJob job;
    job.id = id;
    job.user = QString::fromUtf8(arguments.value(1));
    job.title = QString::fromUtf8(arguments.value(2));
    job.copies = arguments.value(3).toInt();
    job.optionText = QString::fromUtf8(arguments.value(4));
    job.options = parsedOptions(arguments.value(4));
    job.deviceUri = QString::fromUtf8(contents(base + u".uri"_s).trimmed());
    job.data = contents(base + u".data"_s);
    return job;
}
