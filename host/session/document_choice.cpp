// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/session/document_choice.h"

#include "host/printing/documents.h"
#include "host/printing/file_name.h"

#include <QFileInfo>

namespace host {

DocumentChoice::DocumentChoice(const QStringList &paths, QObject *parent)
    : QObject(parent), m_paths(paths), m_opened(std::make_shared<DocumentList>()),
      m_included(paths.size(), true), m_current(paths.isEmpty() ? -1 : 0)
{
}

QString DocumentChoice::name(int index) const
{
    const QString &path = m_paths.at(index);
    return path == QLatin1String("-") ? tr("Standard input") : readableFileName(QFileInfo(path).fileName());
}

void DocumentChoice::setIncluded(int index, bool included)
{
    if (std::exchange(m_included[index], included) != included)
        Q_EMIT includedChanged();
}

QStringList DocumentChoice::included() const
{
    QStringList paths;
    for (int i = 0; i < m_paths.size(); ++i) {
        if (m_included.at(i))
            paths.append(m_paths.at(i));
    }
    return paths;
}

void DocumentChoice::setCurrent(int index)
{
    if (index >= 0 && index < m_paths.size() && std::exchange(m_current, index) != index)
        Q_EMIT currentChanged();
}

} // namespace host
