// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/session/dialog_session.h"
#include "host/session/session_changes.h"

#include <QWidget>

class QCheckBox;
class QGridLayout;

namespace host {

// What the job stands at, section by section, as text that can be read, selected and copied, or only what has
// changed, before and after. A line leads to its control.
class SummaryPage : public QWidget
{
    Q_OBJECT
public:
    explicit SummaryPage(QWidget *parent = nullptr);
    void show(const DialogSession &session, const QList<SummarySection> &sections,
              const QList<SettingChange> &changes);

Q_SIGNALS:
    // The user wants to see the control of a setting, by the key that it has in a change.
    void followed(const QString &key);

private:
    struct Line
    {
        QString name;
        QString value;
        QString key; // empty for what nothing leads to
    };
    struct Part
    {
        QString title;
        QList<Line> lines;
    };
    void showChanged(const DialogSession &session, const QList<SettingChange> &changes);
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
