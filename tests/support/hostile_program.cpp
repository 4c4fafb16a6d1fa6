// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/support/hostile_program.h"
#include "tests/support/paths.h"

#include <QDir>
#include <QFile>

#include <algorithm>
#include <csignal>
#include <cstddef>
#include <cstring>

#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

const QByteArray content = "mine";
const QStringList files = {u".profile"_s, u".ssh/config"_s, u".ssh/id"_s, u"kept"_s};
const QStringList made = {u"moved"_s, u".config/autostart/evil.desktop"_s};

platform::UniqueFd listenAt(const QByteArray &name)
{
    sockaddr_un address = {};
    address.sun_family = AF_UNIX;
    memcpy(address.sun_path, name.constData(), size_t(name.size()));
    platform::UniqueFd listener(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0));
    const auto size = socklen_t(offsetof(sockaddr_un, sun_path) + size_t(name.size()));
    if (::bind(listener.get(), reinterpret_cast<sockaddr *>(&address), size) != 0 ||
        ::listen(listener.get(), 5) != 0)
        qFatal("%s: %s", name.constData(), strerror(errno));
    return listener;
}

} // namespace

HostileProgram::HostileProgram(const QString &folder) : m_folder(folder), m_home(folder + u"/home"_s)
{
    qputenv("TMPDIR", QFile::encodeName(folder));
    putBack();
    m_bus = listenAt(QFile::encodeName(m_home + u"/bus"_s));
    m_display = listenAt('\0' + QFile::encodeName(m_home + u"/X0"_s));
}

HostileProgram::~HostileProgram()
{
    putBack();
    qunsetenv("TMPDIR");
}

void HostileProgram::putBack()
{
    for (const QString &process : survivors())
        ::kill(process.toInt(), SIGKILL);
    for (const QString &name : made)
        QFile::remove(m_home + u'/' + name);
    QDir().mkpath(m_home + u"/.ssh"_s);
    QDir().mkpath(m_home + u"/.config/autostart"_s);
    for (const QString &name : files) {
        QFile file(m_home + u'/' + name);
        if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
            qFatal("%s", qPrintable(file.errorString()));
        file.setPermissions(QFile::ReadOwner | QFile::WriteOwner);
    }
}

void HostileProgram::standIn(const QString &path, const QString &real) const
{
    QFile model(sourcePath("/tests/support/hostile_program.pl")), program(path);
    if (!model.open(QIODevice::ReadOnly) || !program.open(QIODevice::WriteOnly))
        qFatal("%s", qPrintable(path));
    QByteArray text = model.readAll();
    text.replace("@HOME@", QFile::encodeName(m_home));
    text.replace("@CALLER@", QByteArray::number(::getpid()));
    text.replace("@REAL@", QFile::encodeName(real));
    program.write(text);
    program.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner | QFile::ReadOther |
                           QFile::ExeOther);
}

QByteArray HostileProgram::postScript() const
{
    QByteArray text = "%!PS\n"
                      "/done false def\n"
                      "/attempt { stopped not { /done true def } if } bind def\n"
                      "{ (HOME/.ssh/id) (r) file closefile } attempt\n"
                      "{ (HOME/kept) (w) file closefile } attempt\n"
                      "{ (HOME/.ssh/config) deletefile } attempt\n"
                      "{ (HOME/.profile) (HOME/moved) renamefile } attempt\n"
                      "{ (HOME/*) { pop /done true def } 256 string filenameforall } stopped pop\n"
                      "done { showpage } if\n"
                      "72 72 100 100 rectfill showpage\n";
    return text.replace("HOME", QFile::encodeName(m_home));
}

QStringList HostileProgram::survivors() const
{
    QStringList found;
    for (const QString &process : QDir(u"/proc"_s).entryList({u"[0-9]*"_s}, QDir::Dirs)) {
        QFile words(u"/proc/"_s + process + u"/cmdline"_s);
        if (words.open(QIODevice::ReadOnly) &&
            words.readAll().startsWith(QFile::encodeName(m_home + u"/survivor"_s)))
            found.append(process);
    }
    return found;
}

QStringList HostileProgram::damage() const
{
    QStringList found;
    for (const QString &name : files) {
        QFile file(m_home + u'/' + name);
        struct stat facts = {};
        if (!file.open(QIODevice::ReadOnly) || file.readAll() != content ||
            fstat(file.handle(), &facts) != 0 || (facts.st_mode & 0777) != 0600)
            found.append(name);
    }
    for (const QString &left :
         QDir(m_folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot)) {
        if (left != u"home"_s && !left.startsWith(u"runtime-"_s)) // created by Qt without XDG_RUNTIME_DIR
            found.append(left);
    }
    for (const QString &name : made) {
        if (QFile::exists(m_home + u'/' + name))
            found.append(name);
    }
    for (const QString &process : survivors())
        found.append(u"process "_s + process);
    return found;
}
