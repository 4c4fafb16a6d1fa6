// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QList>
#include <QObject>
#include <QPointer>
#include <QSet>
#include <QStringList>

class QWidget;

namespace host {

class ChangeMark;
class DialogSession;
class SessionHistory;
struct SettingChange;

// Marks the controls of a page whose settings are not what they were when the dialog opened or a preset was
// applied: with a sign next to the control that takes the change back when it is pressed, with the same in
// the control's context menu, and in words for a screen reader. Finds the controls by the settings that they
// bear: a panel's by what they are bound to, those of the host's pages by their object name. Touches nothing
// of the page itself; the signs lie over it. A child of what holds the page.
class ChangeMarks : public QObject
{
    Q_OBJECT
public:
    // `panel` is the panel whose page it is, or negative for one of the host's. All are borrowed.
    ChangeMarks(QWidget *page, int panel, DialogSession *session, SessionHistory *history);
    ~ChangeMarks() override;

    // Looks for controls that have come, and at what has changed.
    void refresh();
    // The control of a setting, or null; and all of them.
    QWidget *controlOf(const QString &key);
    QList<QWidget *> controlsOf(const QString &key);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    struct Control
    {
        QPointer<QWidget> widget;
        QStringList keys;
        QPointer<ChangeMark> mark; // while it is changed
        QString ownDescription;    // for a screen reader, without the change
        QString description;       // what was made of it
    };
    void findControls();
    QStringList keysSetBy(const QWidget *control) const;
    void add(QWidget *widget, const QStringList &keys);
    void watch(QWidget *widget);
    void describe(Control *control, const QString &change);
    void show(Control *control, bool isChanged, const QList<SettingChange> &changes);
    void placeAll();
    void place(const Control &control, const QList<QWidget *> &obstacles);
    void takeBack(const Control &control);
    bool showMenu(const Control &control, QWidget *widget, const QPoint &place);

    QWidget *m_page;
    int m_panel;
    DialogSession *m_session;
    SessionHistory *m_history;
    QList<Control> m_controls;
    QSet<QObject *> m_watched;
    bool m_isPlaceQueued = false;
};

} // namespace host
