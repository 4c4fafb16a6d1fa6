// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/preview/private_folder.h"

#include <cstdlib>
#include <filesystem>

namespace host {

PrivateFolder::PrivateFolder()
{
    const QByteArray configured = qgetenv("TMPDIR"); // QDir::tempPath() is empty if this is not a folder
    QByteArray path = (configured.startsWith('/') ? configured : QByteArray("/tmp")) + "/kelmar-print-XXXXXX";
    if (mkdtemp(path.data()))
        m_path = path;
}

PrivateFolder::~PrivateFolder()
{
    std::error_code ignored;
    if (!isNull())
        std::filesystem::remove_all(m_path.toStdString(), ignored);
}

} // namespace host
