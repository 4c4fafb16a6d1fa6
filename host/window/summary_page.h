// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/session/dialog_session.h"

#include <QWidget>

class QGridLayout;

namespace host {

// What the job stands at, section by section, as text that can be read, selected and copied.
class SummaryPage : public QWidget
{
    Q_OBJECT
public:
    explicit SummaryPage(QWidget *parent = nullptr);
    void show(const QList<SummarySection> &sections);

private:
    void addTitle(const QString &title, bool first);
    void addEntry(const QString &name, const QString &value);

    QGridLayout *m_grid = nullptr;
    QWidget *m_sheet = nullptr;
};

} // namespace host
