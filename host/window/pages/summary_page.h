// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/session/dialog_session.h"
#include "host/session/session_changes.h"

#include <QWidget>

class QCheckBox;
class QGridLayout;

namespace host {

// The settings of the job in sections, as text that can be read, selected and copied, or only the changed
// settings with their previous values. A line is a link to its control.
class SummaryPage : public QWidget
{
    Q_OBJECT
public:
    explicit SummaryPage(QWidget *parent = nullptr);
    void show(const DialogSession &session, const QList<SummarySection> &sections,
              const QList<SettingChange> &changes);

Q_SIGNALS:
    // The user wants to see the control of a setting, given by its key in a change.
    void followed(const QString &key);

private:
    struct Line
    {
        QString name;
        QString value;
        QString key; // empty if there is no link
    };
    struct Part
    {
        QString title;
        QList<Line> lines;
    };
    void collectChanges(const DialogSession &session, const QList<SettingChange> &changes);
    void rebuild();
    void addTitle(const QString &title, bool first);
    void addLine(const Line &line);
    QWidget *nameWidget(const Line &line);

    QCheckBox *m_onlyChanges;
    QGridLayout *m_grid = nullptr;
    QWidget *m_sheet = nullptr;
    QList<Part> m_all;
    QList<Part> m_changed;
};

} // namespace host
