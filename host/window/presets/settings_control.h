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

// The presets of the printer that is chosen, as a menu of the window, and the history of what its user has
// changed. Reads and writes presets on a worker thread, and nothing before the menu is first opened.
// A child of the window; the session is borrowed and let go before it goes.
class SettingsControl : public QObject
{
    Q_OBJECT
public:
    explicit SettingsControl(QWidget *window);
    ~SettingsControl() override;

    // "Settings: …"; belongs to the window.
    QPushButton *button() const;
    // Begins a history. Null lets go of the session before.
    void setSession(DialogSession *session);
    // Whether settings can be changed now: not while a job is on its way, nor after.
    void setActive(bool active);
    SessionHistory *history() const { return m_history.get(); } // null without a session
    // The user may have changed something.
    void note();
    // Something has changed that the user has not.
    void absorb();
    // Work that keeps what the session is printed with as "last used"; may run on any thread.
    std::function<void()> rememberUse() const;

Q_SIGNALS:
    // A step was made, undone or redone.
    void changed();
    // Settings have been applied, or a step was undone or redone; conflicts may have come.
    void applied();
    void presetsChanged();
    void failed(const host::PrintError &error);

protected:
    // An undo key in a field that has nothing to undo is the window's.
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
    // Runs on a worker thread; `done` then runs here, if the session is still the same.
    void edit(std::function<PrintError(const PresetStore &)> work, const std::function<void()> &done);
    void forget(const QString &name);
    void leaveInstance(const QString &name, const QString &another);
    void showName();
    QMap<QString, QString> optionsOf(const QString &name) const;
    QMap<QString, QString> queueOptions() const;
    QStringList names() const;
    QString queue() const;

    QWidget *m_window;
    MenuButton *m_button;
    QMenu *m_menu = nullptr; // made when the button wants it
    QActionGroup *m_choices; // one of the settings to begin with
    QAction *m_undo;
    QAction *m_redo;
    DialogSession *m_session = nullptr;
    bool m_isActive = false;
    std::unique_ptr<SessionHistory> m_history;
    QMap<QString, QString> m_startOptions;                // of the destination that was opened
    std::optional<QMap<QString, QString>> m_queueOptions; // without the user's, once these have been read
    QString m_startInstance;
    Lists m_lists;
    QPointer<QDialog> m_dialog; // asks about the presets of this session
    platform::Awaited<Lists> m_reading;
    platform::Awaited<PrintError> m_editing;
};

} // namespace host
