// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/preview/private_folder.h"

#include "platform/background.h"

#include <QCoreApplication>

#include <cstdlib>
#include <filesystem>

#include <unistd.h>

namespace host {

PrivateFolder::PrivateFolder()
{
    const QByteArray configured = qgetenv("TMPDIR"); // QDir::tempPath() is empty if this is not a folder
    QByteArray path = (configured.startsWith('/') ? configured : QByteArray("/tmp")) + "/kelmar-print-XXXXXX";
    if (mkdtemp(path.data()))
        m_path = path;
}

// Removes a folder with few files at once. A folder with many files takes longer, and is removed on a worker
// thread.
void PrivateFolder::remove()
{
    constexpr int few = 200;
    if (m_path.isNull() || ::rmdir(m_path.constData()) == 0)
        return;
    const std::filesystem::path path = m_path.toStdString();
    std::error_code ignored;
    int removed = 0;
    for (std::filesystem::directory_iterator entry(path, ignored), end; entry != end && removed < few;
         ++removed) {
        ::unlink(entry->path().c_str());
        entry.increment(ignored);
    }
    if (::rmdir(m_path.constData()) == 0)
        return;
    const auto removeAll = [path] {
        std::error_code error;
        std::filesystem::remove_all(path, error);
    };
    if (QCoreApplication::instance() && !QCoreApplication::closingDown())
        platform::Background::start(removeAll, QCoreApplication::instance(), [] {});
    else
        removeAll();
}

} // namespace host
