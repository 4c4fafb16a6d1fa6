// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/window/presets/preset_menu.h"

#include "host/session/dialog_session.h"
#include "host/session/preset_settings.h"
#include "host/session/session_history.h"
#include "host/window/look/explanations.h"
#include "host/window/look/foreign_text.h"
#include "host/window/look/menu_button.h"
#include "host/window/look/mnemonics.h"
#include "host/window/presets/preset_dialog.h"

#include <QAbstractSpinBox>
#include <QAction>
#include <QActionGroup>
#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>

#include <algorithm>

namespace host {

namespace {

// Represents the printer's defaults; no preset has this name, since names contain no slash.
const QString printersDefaults = QStringLiteral("/printer");
const QString ownDefaults = QStringLiteral("/own");
const QString lastUsed = QStringLiteral("/last");
// The thread waits this long for the presets, so that the menu usually shows those of local files at once.
constexpr std::chrono::milliseconds localFiles(50);
constexpr int longestName = 24; // characters on the button

bool isPresetName(const QString &name)
{
    return !name.isEmpty() && !name.startsWith(QLatin1Char('/'));
}

QLineEdit *fieldAt(QObject *object)
{
    if (auto *spin = qobject_cast<QAbstractSpinBox *>(object))
        return spin->findChild<QLineEdit *>();
    return qobject_cast<QLineEdit *>(object);
}

// Moves the focus from a control that undo or redo has disabled to the control before it, which is often the
// one that enables it.
void focusBefore(QWidget *gone)
{
    QWidget *next = gone->previousInFocusChain();
    while (next != gone && !((next->focusPolicy() & Qt::TabFocus) && next->isEnabled() && next->isVisible()))
        next = next->previousInFocusChain();
    next->setFocus(Qt::BacktabFocusReason);
}

} // namespace

PresetMenu::PresetMenu(QWidget *window)
    : QObject(window), m_window(window), m_button(new MenuButton(window)), m_choices(new QActionGroup(this)),
      m_undo(new QAction(tr("&Undo"), window)), m_redo(new QAction(tr("&Redo"), window))
{
    m_button->setObjectName(QStringLiteral("presets"));
    m_button->setAutoDefault(false);
    m_button->setEnabled(false);
    m_undo->setShortcut(Qt::CTRL | Qt::Key_Z);
    m_redo->setShortcuts({Qt::CTRL | Qt::SHIFT | Qt::Key_Z, Qt::CTRL | Qt::Key_Y});
    window->addActions({m_undo, m_redo});
    connect(m_undo, &QAction::triggered, this, [this] { step(&QUndoStack::undo); });
    connect(m_redo, &QAction::triggered, this, [this] { step(&QUndoStack::redo); });
    connect(m_button, &MenuButton::menuWanted, this, &PresetMenu::makeMenu);
    qApp->installEventFilter(this);
    showName();
}

PresetMenu::~PresetMenu() = default;

QPushButton *PresetMenu::button() const
{
    return m_button;
}

void PresetMenu::makeMenu()
{
    m_menu = new QMenu(m_button);
    connect(m_menu, &QMenu::aboutToShow, this, &PresetMenu::openMenu);
    m_button->setMenu(m_menu);
}

void PresetMenu::setSession(DialogSession *session)
{
    m_history.reset();
    delete m_dialog;
    if (m_menu) { // its actions refer to the previous session
        m_menu->hide();
        m_menu->clear();
    }
    m_session = session;
    m_lists = {};
    m_reading.drop();
    if (session) {
        m_startOptions = session->destination().options;
        m_queueOptions.reset();
        m_startInstance = session->destination().instance;
        m_history = std::make_unique<SessionHistory>(session);
        connect(m_history->steps(), &QUndoStack::indexChanged, this, &PresetMenu::showName);
        connect(m_history.get(), &SessionHistory::changed, this, &PresetMenu::changed);
    }
    m_button->setEnabled(session && !session->destination().queue.isEmpty());
    showName();
}

void PresetMenu::setActive(bool active)
{
    m_isActive = active;
    showName();
}

void PresetMenu::step(void (QUndoStack::*direction)())
{
    const QPointer<QWidget> focus = m_window->focusWidget();
    note(); // pending changes
    (m_history->steps()->*direction)();
    Q_EMIT applied();
    if (focus && !(focus->isEnabled() && focus->isVisible()))
        focusBefore(focus);
}

void PresetMenu::note()
{
    if (m_history)
        m_history->note();
    showName();
}

void PresetMenu::resync()
{
    if (m_history)
        m_history->resync();
    showName();
}

QString PresetMenu::queue() const
{
    return m_session->destination().queue;
}

std::function<void()> PresetMenu::rememberUse() const
{
    const QString queue = this->queue();
    if (queue.isEmpty())
        return [] {};
    return [queue, options = presetOptions(*m_session, {}, false)] {
        PrintError ignored; // the job is already accepted, and these settings are only a convenience
        (void)PresetStore(PresetStore::filesOfLastUsed()).save(queue, {QString(), options}, &ignored);
    };
}

void PresetMenu::showName()
{
    const QString name = m_history ? m_history->base().name : QString();
    QString text = name.isEmpty()             ? tr("Defaults")
                   : name == printersDefaults ? tr("Printer’s Defaults")
                   : name == ownDefaults      ? tr("My Defaults")
                   : name == lastUsed         ? tr("Last Used")
                                              : oneLine(name, longestName);
    if (m_history && !m_history->base().state.differencesTo(m_history->now()).isEmpty())
        text = tr("%1 (changed)", "the name of settings").arg(text);
    // Some styles leave no space before the arrow of a menu.
    const QString label = tr("&Settings: %1").arg(Mnemonics::escaped(text)) + QLatin1Char(' ');
    if (m_button->text().remove(QLatin1Char('&')) != QString(label).remove(QLatin1Char('&')))
        m_button->setText(label);
    m_undo->setEnabled(m_history && m_history->steps()->canUndo() && m_isActive);
    m_redo->setEnabled(m_history && m_history->steps()->canRedo() && m_isActive);
}

PresetMenu::Lists PresetMenu::readLists(const QString &queue)
{
    Lists lists;
    lists.presets = PresetStore().list(queue, &lists.error).value_or(QList<Preset>());
    PrintError ignored;
    const auto used = PresetStore(PresetStore::filesOfLastUsed()).list(queue, &ignored);
    if (used && !used->isEmpty())
        lists.lastUsed = used->first();
    return lists;
}

// If reading the files takes long, shows the last known presets first.
void PresetMenu::openMenu()
{
    m_reading.start(
        this, [queue = queue()] { return readLists(queue); },
        [this](const Lists &lists) {
            m_lists = lists;
            if (!lists.error && !m_queueOptions) // only at first, before presets can be changed here
                m_queueOptions = queueOptions();
            if (m_menu->isVisible())
                fillMenu();
            if (lists.error)
                Q_EMIT failed(lists.error);
        });
    (void)m_reading.deliverWithin(localFiles);
    fillMenu();
}

bool PresetMenu::hasOwnDefaults() const
{
    return presetNamed(m_lists.presets, QString()) != nullptr;
}

void PresetMenu::addChoice(const QString &text, const QString &name)
{
    QAction *action = m_menu->addAction(Mnemonics::escaped(text));
    action->setActionGroup(m_choices);
    action->setData(name);
    action->setCheckable(true);
    const QString base = m_history->base().name;
    const bool isStart = base.isEmpty() && name == (hasOwnDefaults() ? ownDefaults : printersDefaults);
    action->setChecked(name == base || isStart);
    connect(action, &QAction::triggered, this, [this, name] { apply(name); });
}

void PresetMenu::addEditing(const QString &text, const std::function<void()> &run)
{
    QAction *action = m_menu->addAction(text);
    action->setEnabled(!m_editing.isPending());
    connect(action, &QAction::triggered, this, run);
}

void PresetMenu::fillMenu()
{
    m_menu->clear();
    if (hasOwnDefaults())
        addChoice(tr("My Defaults"), ownDefaults);
    addChoice(tr("Printer’s Defaults"), printersDefaults);
    if (m_lists.lastUsed)
        addChoice(tr("Last Used"), lastUsed);
    if (!names().isEmpty())
        m_menu->addSeparator();
    for (const QString &name : names())
        addChoice(oneLine(name), name);
    m_menu->addSeparator();
    addChanges();
    m_menu->addSeparator();
    m_menu->addActions({m_undo, m_redo});
}

void PresetMenu::addChanges()
{
    const QString name = m_history->base().name;
    const QString shown = Mnemonics::escaped(oneLine(name, longestName));
    if (isPresetName(name))
        addEditing(tr("Save “%1”").arg(shown), [this, name] { save(name, keepsSecrets(name)); });
    addEditing(tr("Save &As…"), [this] { saveAs(); });
    if (isPresetName(name)) {
        addEditing(tr("Rename “%1”…").arg(shown), [this] { rename(); });
        addEditing(tr("Delete “%1”…").arg(shown), [this] { remove(); });
    }
    addEditing(tr("Use as My &Default for This Printer"), [this] { useAsDefault(); });
}

// Whether the user has allowed a preset to contain codes.
bool PresetMenu::keepsSecrets(const QString &name) const
{
    const QStringList options = optionsOf(name).keys();
    return std::any_of(options.begin(), options.end(),
                       [this](const QString &option) { return m_session->isSecret(option); });
}

QStringList PresetMenu::names() const
{
    QStringList names;
    for (const Preset &preset : m_lists.presets) {
        if (!preset.name.isEmpty())
            names.append(preset.name);
    }
    return names;
}

QMap<QString, QString> PresetMenu::optionsOf(const QString &name) const
{
    if (name == lastUsed && m_lists.lastUsed)
        return m_lists.lastUsed->options;
    if (name.startsWith(QLatin1Char('/')) && name != ownDefaults)
        return {};
    const Preset *preset = presetNamed(m_lists.presets, name == ownDefaults ? QString() : name);
    return preset ? preset->options : QMap<QString, QString>();
}

// The options of the queue itself. The print system returns them together with those of the user, which are
// removed here.
QMap<QString, QString> PresetMenu::queueOptions() const
{
    if (m_queueOptions)
        return *m_queueOptions;
    QMap<QString, QString> options = m_startOptions;
    const QMap<QString, QString> users = optionsOf(m_startInstance);
    options.removeIf([&](const auto &option) { return users.contains(option.key()); });
    return options;
}

void PresetMenu::apply(const QString &name)
{
    m_session->save();
    m_history->note();
    m_history->endGesture();
    {
        const auto paused = m_history->pause(); // a panel may query its device
        applyPreset(m_session, queueOptions(), optionsOf(name));
    }
    m_history->takeBase(name);
    m_history->note();
    m_history->endGesture();
    showName();
    Q_EMIT applied();
}

void PresetMenu::edit(std::function<bool(const PresetStore &, PrintError *)> work,
                      const std::function<void()> &done)
{
    m_editing.start(
        this,
        [work = std::move(work)] {
            PrintError error;
            (void)work(PresetStore(), &error);
            return error;
        },
        [this, done, history = QPointer(m_history.get())](const PrintError &error) {
            if (error) {
                Q_EMIT failed(error);
                return;
            }
            if (history && m_history.get() == history) {
                m_history->note();
                done();
            }
            showName();
            Q_EMIT changed();
            Q_EMIT presetsChanged();
        });
}

// Detaches the settings from a preset that no longer exists, and keeps them. Changes are then shown relative
// to the initial values of the printer.
void PresetMenu::forget(const QString &name)
{
    leaveInstance(name, {});
    QStringList ignored;
    SessionHistory::Base defaults{
        stateWithPreset(m_session, queueOptions(), optionsOf(ownDefaults), &ignored), {}};
    const SessionState now = m_session->state();
    defaults.state.panelValues = m_history->startingPanelValues();
    defaults.state.instance = now.instance;
    defaults.state.destinationOptions = now.destinationOptions;
    m_history->replaceBase(name, defaults);
}

// Changes the instance of the session's destination if it is the preset that was renamed or deleted.
void PresetMenu::leaveInstance(const QString &name, const QString &another)
{
    if (m_startInstance == name)
        m_startInstance = another;
    m_history->renameInstance(name, another);
}

void PresetMenu::save(const QString &name, bool withSecrets)
{
    m_session->save();
    const QString inUse = m_history->base().name.isEmpty() ? m_startInstance : m_history->base().name;
    const Preset preset{name == ownDefaults ? QString() : name,
                        presetOptions(*m_session, optionsOf(inUse), withSecrets)};
    edit([queue = queue(), preset](const PresetStore &store,
                                   PrintError *error) { return store.save(queue, preset, error); },
         [this, name] {
             m_history->takeBase(name);
             m_history->note();
         });
}

void PresetMenu::saveAs()
{
    const QString name = m_history->base().name;
    m_session->save();
    auto *dialog = new PresetDialog(PresetDialog::Purpose::Save, isPresetName(name) ? name : QString(),
                                    names(), hasSecrets(*m_session), m_window);
    connect(dialog, &QDialog::accepted, this,
            [this, dialog] { save(dialog->name(), dialog->keepsSecrets()); });
    m_dialog = dialog;
    dialog->open();
}

void PresetMenu::rename()
{
    const QString from = m_history->base().name;
    auto *dialog = new PresetDialog(PresetDialog::Purpose::Rename, from, names(), false, m_window);
    connect(dialog, &QDialog::accepted, this, [this, dialog, from] {
        const QString to = dialog->name();
        edit([queue = queue(), from, to](const PresetStore &store,
                                         PrintError *error) { return store.rename(queue, from, to, error); },
             [this, from, to] {
                 leaveInstance(from, to);
                 m_history->renameBase(from, to);
             });
    });
    m_dialog = dialog;
    dialog->open();
}

// Asks whether to delete the preset. The current settings do not change.
void PresetMenu::remove()
{
    const QString name = m_history->base().name;
    auto *question = new QMessageBox(QMessageBox::Question, tr("Delete Preset"),
                                     tr("Delete the preset “%1”? Other programs use it as well.").arg(name),
                                     QMessageBox::Cancel, m_window);
    question->setTextFormat(Qt::PlainText);
    question->setAttribute(Qt::WA_DeleteOnClose);
    auto *yes = question->addButton(tr("&Delete"), QMessageBox::AcceptRole);
    question->setDefaultButton(QMessageBox::Cancel);
    yes->setWhatsThis(explanationOf(QStringLiteral("preset-delete")));
    question->button(QMessageBox::Cancel)->setWhatsThis(explanationOf(QStringLiteral("preset-cancel")));
    connect(yes, &QPushButton::clicked, this, [this, name] {
        edit([queue = queue(), name](const PresetStore &store,
                                     PrintError *error) { return store.remove(queue, name, error); },
             [this, name] { forget(name); });
    });
    m_dialog = question;
    question->open();
}

void PresetMenu::useAsDefault()
{
    save(ownDefaults, false);
}

bool PresetMenu::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::ShortcutOverride)
        return false;
    const auto *key = static_cast<QKeyEvent *>(event);
    const QLineEdit *field = fieldAt(watched);
    if (!field || field->window() != m_window)
        return false;
    const QKeySequence pressed(key->keyCombination());
    const bool isUndo = m_undo->shortcuts().contains(pressed), isRedo = m_redo->shortcuts().contains(pressed);
    if ((isUndo && !field->isUndoAvailable()) || (isRedo && !field->isRedoAvailable())) {
        event->ignore();
        return true;
    }
    return false;
}

} // namespace host
