// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/session/dialog_session.h"

#include "host/extensions/extensions.h"
#include "host/session/booklet.h"
#include "host/session/job_options.h"
#include "host/session/protection_checks.h"
#include "host/session/setting_keys.h"
#include "platform/key_value_object.h"

#include <algorithm>
#include <utility>

namespace host {

namespace {

// The settings that a panel removes from the job because it cannot query its device; null if there are none.
QString droppedSettings(platform::PrintDialogPanel &panel, const QVariantMap &before,
                        const platform::PrintSettings &now)
{
    QStringList dropped;
    for (auto it = before.begin(); it != before.end(); ++it) {
        if (!now.value(it.key()).isValid())
            dropped.append(it.key().section(QLatin1Char('.'), -1));
    }
    if (dropped.isEmpty())
        return {};
    return DialogSession::tr("Stored settings of “%1” are not sent with the job (%2): %3")
        .arg(panel.panelName(), dropped.join(QStringLiteral(", ")), panel.unavailableReason());
}

// Describes the user's defaults whose option or choice the PPD does not have. Such a choice is not marked,
// and a filter would use its own default. Null if there are none.
QString unknownDefaults(const PpdDocument &ppd, const Destination &destination)
{
    QStringList unknown;
    for (auto it = destination.options.begin(); it != destination.options.end(); ++it) {
        const auto option = ppd.option(it.key());
        if (looksLikeOptionOfAPpd(it.key()) && !ppd.takesOption(it.key()) &&
            !destination.serverOptions.contains(it.key()))
            unknown.append(it.key());
        if (!option || option->choices.isEmpty() || GeneralSettings::covers(it.key()))
            continue;
        if (!option->hasChoice(option->spelled(it.value())) && !isCustomChoice(it.value()))
            unknown.append(option->text);
    }
    return unknown.isEmpty()
               ? QString()
               : DialogSession::tr(
                     "Your defaults for this printer contain choices that it does not have: %1.")
                     .arg(unknown.join(QStringLiteral(", ")));
}

} // namespace

DialogSession::DialogSession(const Destination &destination, std::unique_ptr<PpdDocument> ppd)
    : m_rule(Policy::current().ruleFor(destination.queue)), m_destination(destination), m_ppd(std::move(ppd)),
      m_locks(Policy::current(), destination.queue, m_ppd.get()),
      m_host(m_destination, m_ppd ? m_ppd->record() : nullptr), m_panels(m_ppd.get()),
      m_changes(&m_panels, m_ppd.get(), &m_host.settings())
{
    connect(&m_host, &PanelHost::changeAnnounced, this, &DialogSession::noteAnnounced);
    connect(&m_host, &PanelHost::failed, this, [this](const QString &reason) {
        addNotice(tr("A page of the printer's settings cannot be shown: %1").arg(reason));
    });
    connect(&m_host, &PanelHost::blockingBegan, this, &DialogSession::blockingBegan);
    connect(&m_host, &PanelHost::blockingEnded, this, &DialogSession::blockingEnded);
    connect(&m_panels, &SessionPanels::keyChanged, this, &DialogSession::panelKeyChanged);
    connect(&m_panels, &SessionPanels::failed, this, &DialogSession::addNotice);
    connect(&m_panels, &SessionPanels::chosen, this, [this](const QString &key, const QString &value) {
        noteChosen({key, value});
    });
    if (const QString problem = Policy::current().problem(); !problem.isNull())
        addNotice(problem);
    if (!m_destination.optionsProblem.isNull())
        addNotice(m_destination.optionsProblem);
    leaveOutForbidden();
    m_rule.applyTo(&m_destination, m_ppd.get());
    m_notices += leaveOutInvalid(*this, &m_destination.options);
    if (m_ppd) {
        m_notices += m_ppd->markOptions(m_destination.options);
        m_locks.mark(m_ppd.get());
    }
    for (auto it = m_destination.options.begin(); it != m_destination.options.end(); ++it) {
        if (isPanelSetting(it.key()))
            m_host.settings().setValue(it.key(), it.value());
    }
    m_startingGeneral = m_general = GeneralSettings::from(m_destination.options);
    if (m_general.layout.isBooklet() && m_ppd) {
        turnSidesForBooklet(*this);
        m_locks.mark(m_ppd.get());
    }
    if (const QString unknown = m_ppd ? unknownDefaults(*m_ppd, m_destination) : QString(); !unknown.isNull())
        addNotice(unknown);
}

DialogSession::~DialogSession()
{
    m_panels.clear();
}

void DialogSession::loadPanels(Extensions &extensions)
{
    if (!m_ppd)
        return;
    Protection protection = extensions.protectionFor(m_ppd->modelName(), &m_notices);
    for (auto it = m_rule.locked.begin(); it != m_rule.locked.end(); ++it) // no resolution may change it
        protection.choices[it.key()].append(it.value());
    setProtection(protection);
    loadPanels([&](platform::PrintDialogHost *host) {
        return extensions.panelsFor(m_ppd->modelName(), host, &m_notices);
    });
    if (m_panels.count() == 0)
        m_ppd->releaseConstraintRecords();
}

void DialogSession::setProtection(const Protection &protection)
{
    m_protection = protection;
    m_secrets.reset();
}

bool DialogSession::isSecret(const QString &key) const
{
    if (!m_secrets)
        m_secrets.emplace(m_ppd.get(), m_protection);
    return m_secrets->contains(key);
}

// Reports the user's defaults and presets that violate the policy. PPD options among them remain, since the
// job must override the values that the server would add.
void DialogSession::leaveOutForbidden()
{
    const QMap<QString, QString> all = m_destination.options;
    for (auto it = all.begin(); m_ppd && it != all.end(); ++it) {
        const bool isGiven =
            m_destination.serverOptions.contains(it.key()) || m_rule.defaults.value(it.key()) == it.value();
        const PrintError refusal =
            isGiven ? PrintError() : m_locks.refusal(m_ppd.get(), it.key(), it.value());
        if (!refusal)
            continue;
        if (!m_policyViolation)
            m_policyViolation = refusal;
        addNotice(refusal.message);
        if (!m_ppd->takesOption(it.key()))
            m_destination.options.remove(it.key());
    }
}

// The settings of a locked page are the printer's defaults with the policy applied.
void DialogSession::lockPages()
{
    for (int i = 0; i < m_panels.count(); ++i) {
        for (const QString &keyword : isPanelLocked(i) ? m_panels.keywords(i) : QStringList()) {
            const auto option = m_ppd->option(keyword);
            if (!option)
                continue;
            const QString begins = m_rule.defaults.value(keyword);
            m_locks.addFromPage(keyword, option->hasChoice(begins) ? begins : option->defaultChoice);
        }
    }
    leaveOutForbidden();
    m_locks.mark(m_ppd.get());
    for (const QString &name : m_host.settings().values().keys()) {
        if (!m_destination.options.contains(name))
            m_host.settings().setValue(name, {});
    }
}

void DialogSession::loadPanels(
    const std::function<platform::PrintDialogPanels(platform::PrintDialogHost *)> &create)
{
    m_panels.adopt(create(&m_host));
    if (m_ppd)
        lockPages();
    settle();
}

void DialogSession::panelKeyChanged(int panel, const QString &key)
{
    m_changes.noteSetting(panel, key);
    const QString locked = m_rule.lockedChoice(m_ppd.get(), key);
    if (!locked.isNull() && m_panels.objectOf(panel)->valueForKey(key).toString() != locked)
        QMetaObject::invokeMethod(
            this, [this, panel, key] { keepLocked(panel, key); }, Qt::QueuedConnection);
}

// Restores a locked choice that a panel has changed. Called when control has returned to the event loop, so
// that the panel has reacted to the change.
void DialogSession::keepLocked(int panel, const QString &key)
{
    const QString locked = m_rule.lockedChoice(m_ppd.get(), key);
    if (m_panels.objectOf(panel)->valueForKey(key).toString() == locked)
        return;
    m_panels.setOn(panel, key, locked);
    const OptionChoice kept = m_ppd->described(key, locked);
    addNotice(
        tr("“%1” stays “%2”. %3").arg(kept.optionText, kept.choiceText, Policy::current().attribution()));
    Q_EMIT changed();
}

void DialogSession::prepare(int index)
{
    if (m_panels.isRestored(index))
        return;
    for (int i = 0; i < index; ++i) {
        m_panels.announceChoices(i);
        settle();
    }
    m_panels.restore(index);
    settle();
}

void DialogSession::save()
{
    for (int i = 0; i < m_panels.count(); ++i) {
        if (!m_panels.isRestored(i) || m_panels.isRestoring(i))
            continue;
        const QVariantMap before = m_host.settings().values();
        m_panels.save(i);
        const QString dropped = droppedSettings(*m_panels.panel(i), before, m_host.settings());
        if (!dropped.isNull())
            addNotice(dropped);
    }
    settle();
}

QStringList DialogSession::otherKeywords() const
{
    QStringList others;
    if (!m_ppd)
        return others;
    const QStringList general = generalOptionKeywords(*m_ppd);
    for (const QString &keyword : m_ppd->settableKeywords()) {
        const bool shown = general.contains(keyword) || m_panels.ofKeyword(keyword) >= 0;
        if (!shown && keyword != QLatin1String("Collate"))
            others.append(keyword);
    }
    return others;
}

// Marks a choice in the PPD and records it. All choices of the host are marked here: those of its controls,
// presets, undo, applications, the command line and proposals. Changes the setting to the PPD's spelling;
// does not update panels. False if the PPD does not have the choice, or the policy has fixed another one.
bool DialogSession::mark(ChosenSetting *setting)
{
    const auto option = m_ppd ? m_ppd->option(setting->key) : std::nullopt;
    if (!option)
        return false;
    setting->key = option->keyword;
    setting->value = option->spelled(setting->value);
    if (!m_locks.allows(setting->key, setting->value) || !m_ppd->mark(setting->key, setting->value))
        return false;
    noteChosen(*setting);
    return true;
}

bool DialogSession::markChoice(const QString &keyword, const QString &choice, bool isSecret)
{
    ChosenSetting setting{keyword, choice};
    setting.isSecret = isSecret;
    if (!mark(&setting))
        return false;
    m_lastUserKeyword = setting.key;
    m_panels.set(setting.key, setting.value);
    settle();
    return true;
}

PrintError DialogSession::setGeneral(const QString &name, const QString &value)
{
    GeneralSettings wanted = m_general;
    if (const QString problem = wanted.set(name, value); !problem.isNull())
        return {PrintError::Kind::BadValue, problem};
    const QString option = GeneralSettings::jobOptionOf(name);
    PrintError refusal = m_locks.refusal(m_ppd.get(), option, wanted.value(option));
    if (!refusal)
        m_general = wanted;
    return refusal;
}

void DialogSession::setOfferedParts(bool currentPage, bool selection)
{
    m_general.offersCurrentPage = currentPage;
    m_general.offersSelection = selection;
}

void DialogSession::addNotice(const QString &notice)
{
    if (!m_notices.contains(notice))
        m_notices.append(notice);
}

void DialogSession::noteChosen(ChosenSetting setting)
{
    // A panel that is saved announces the values that were set on it again; codes among them stay secret.
    const auto &earlier = m_chosen.inOrder();
    setting.isSecret |=
        isSecret(setting.key) || std::any_of(earlier.begin(), earlier.end(), [&](const ChosenSetting &known) {
            return known.isSecret && known.key == setting.key && known.value == setting.value;
        });
    m_chosen.add(setting.text.isNull() ? inWords(*this, setting) : setting);
}

QList<Conflict> DialogSession::conflicts() const
{
    return m_ppd ? m_ppd->conflicts() : QList<Conflict>();
}

std::optional<Resolution> DialogSession::proposal(QString *givenUp) const
{
    return m_ppd ? protectingResolution(*m_ppd, m_protection, m_lastUserKeyword, givenUp) : std::nullopt;
}

void DialogSession::apply(const Resolution &resolution)
{
    QList<ChosenSetting> made;
    for (const OptionChoice &change : resolution) {
        ChosenSetting setting{change.option, change.choice};
        if (const PrintError refusal = m_locks.refusal(m_ppd.get(), change.option, change.choice))
            addNotice(refusal.message);
        else if (mark(&setting))
            made.append(setting);
    }
    for (const ChosenSetting &setting : std::as_const(made)) {
        m_savedKeywords.insert(setting.key);
        m_panels.set(setting.key, setting.value);
    }
    save();
    Q_EMIT changed();
}

QStringList DialogSession::takeNotices()
{
    return std::exchange(m_notices, {});
}

void DialogSession::noteAnnounced(const QString &keyword)
{
    m_changes.announce(keyword);
    if (m_panels.isBusy() || std::exchange(m_settleQueued, true))
        return;
    QMetaObject::invokeMethod(
        this,
        [this] {
            settle();
            Q_EMIT changed();
        },
        Qt::QueuedConnection);
}

void DialogSession::settle()
{
    m_settleQueued = false;
    PanelChanges::Outcome outcome = m_changes.settle();
    for (const QString &keyword : outcome.saved)
        m_savedKeywords.insert(keyword);
    for (const ChosenSetting &setting : outcome.chosen) {
        m_lastUserKeyword = setting.key;
        noteChosen(setting);
    }
    for (UnrequestedChange &unrequested : outcome.unrequested) {
        if (isSecret(unrequested.change.option))
            unrequested.change.choiceText = hiddenValue();
    }
    m_notices += changeNotices(outcome.unrequested);
}

QList<SummarySection> DialogSession::summary()
{
    for (int i = 0; i < m_panels.count(); ++i)
        m_panels.announceChoices(i);
    settle();
    QList<SummarySection> sections{generalSummary(*this)};
    for (int i = 0; i < m_panels.count(); ++i) {
        SummarySection section{m_panels.panel(i)->panelName(), {}, i};
        const QMap<QString, QString> info = m_panels.panel(i)->summaryInfo();
        for (auto it = info.begin(); it != info.end(); ++it)
            section.entries.append({it.key(), it.value()});
        if (!section.entries.isEmpty())
            sections.append(section);
    }
    for (const SummarySection &section : {moreSummary(*this), printModeSummary(*this), jobSummary(*this)}) {
        if (!section.entries.isEmpty())
            sections.append(section);
    }
    return sections;
}

QList<JobOption> DialogSession::jobOptions(const GeneralSettings *general) const
{
    return host::jobOptions({m_destination, m_ppd.get(), m_chosen, m_savedKeywords,
                             m_host.settings().values(), general ? *general : m_general});
}

} // namespace host
