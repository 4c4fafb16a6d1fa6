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

// Marks the controls on a page whose settings differ from those at the start of the dialog, or after a preset
// was applied: with a mark next to the control that undoes the change when it is pressed, with an entry in
// the control's context menu, and with a description for screen readers. Controls of a panel are found by
// their bindings, those of the host's pages by their object names. Does not change the page; the marks are
// placed above it. A child of the widget that contains the page.
class ChangeMarks : public QObject
{
    Q_OBJECT
public:
    // `panel` is the panel of the page, or negative for a page of the host. All pointers are borrowed.
    ChangeMarks(QWidget *page, int panel, DialogSession *session, SessionHistory *history);
    ~ChangeMarks() override;

    // Looks for new controls and for changes.
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
        QPointer<ChangeMark> mark; // while the setting is changed
        QString ownDescription;    // for a screen reader, without the change
        QString description;       // the description that was set
    };
    struct Obstacle;
    void findControls();
    QStringList keysSetBy(const QWidget *control) const;
    void add(QWidget *widget, const QStringList &keys);
    void watch(QWidget *widget);
    void describe(Control *control, const QString &change);
    void show(Control *control, bool isChanged, const QList<SettingChange> &changes);
    void placeAll();
    static void addObstacles(const QWidget *outer, const QPoint &origin, const QRect &strip,
                             QList<Obstacle> *obstacles);
    static bool isFree(const QRect &place, const QWidget *control, const QWidget *sheet,
                       const QList<Obstacle> &obstacles);
    void place(const Control &control);
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
