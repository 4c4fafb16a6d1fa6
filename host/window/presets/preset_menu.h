// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/printing/preset_store.h"
#include "platform/awaited.h"

#include <QObject>
#include <QPointer>

#include <functional>
#include <memory>
#include <optional>

class QAction;
class QActionGroup;
class QDialog;
class QMenu;
class QPushButton;
class QUndoStack;

namespace host {

class DialogSession;
class MenuButton;
class SessionHistory;

// The menu of the presets of the selected printer, and the undo history of the session. Presets are read when
// the menu is opened, and written on request, both on a worker thread. A child of the window. The session is
// borrowed; detach it before it is destroyed.
class PresetMenu : public QObject
{
    Q_OBJECT
public:
    explicit PresetMenu(QWidget *window);
    ~PresetMenu() override;

    // The button "Settings: …"; owned by the window.
    QPushButton *button() const;
    // Starts a history for a session. Null detaches the previous session.
    void setSession(DialogSession *session);
    // Sets whether settings can be changed: not while a job is being sent, nor afterwards.
    void setActive(bool active);
    SessionHistory *history() const { return m_history.get(); } // null without a session
    // Call when the user may have changed a setting.
    void note();
    // Call when a setting has changed without the user.
    void resync();
    // A function that stores the current settings as last used; may be called on any thread.
    std::function<void()> rememberUse() const;

Q_SIGNALS:
    // A step was made, undone or redone.
    void changed();
    // Settings have been applied, or a step was undone or redone; there may be new conflicts.
    void applied();
    void presetsChanged();
    void failed(const host::PrintError &error);

protected:
    // Handles an undo key in a field that has nothing to undo.
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void step(void (QUndoStack::*direction)());
    struct Lists
    {
        QList<Preset> presets;
        std::optional<Preset> lastUsed;
        PrintError error;
    };
    static Lists readLists(const QString &queue);
    void makeMenu();
    void openMenu();
    void fillMenu();
    void addChoice(const QString &text, const QString &name);
    void addChanges();
    bool hasOwnDefaults() const;
    void addEditing(const QString &text, const std::function<void()> &run);
    void apply(const QString &name);
    void save(const QString &name, bool withSecrets);
    bool keepsSecrets(const QString &name) const;
    void saveAs();
    void rename();
    void remove();
    void useAsDefault();
    // Runs `work` on a worker thread; `done` is then called on this thread, if the session is still the same.
    void edit(std::function<bool(const PresetStore &, PrintError *)> work, const std::function<void()> &done);
    void forget(const QString &name);
    void leaveInstance(const QString &name, const QString &another);
    void showName();
    QMap<QString, QString> optionsOf(const QString &name) const;
    QMap<QString, QString> queueOptions() const;
    QStringList names() const;
    QString queue() const;

    QWidget *m_window;
    MenuButton *m_button;
    QMenu *m_menu = nullptr; // created on first use
    QActionGroup *m_choices; // the entries that apply settings
    QAction *m_undo;
    QAction *m_redo;
    DialogSession *m_session = nullptr;
    bool m_isActive = false;
    std::unique_ptr<SessionHistory> m_history;
    QMap<QString, QString> m_startOptions; // of the destination that was opened
    // without the user's options, once these have been read
    std::optional<QMap<QString, QString>> m_queueOptions;
    QString m_startInstance;
    Lists m_lists;
    QPointer<QDialog> m_dialog; // asks about presets of this session
    platform::Awaited<Lists> m_reading;
    platform::Awaited<PrintError> m_editing;
};

} // namespace host
