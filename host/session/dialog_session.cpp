// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/session/dialog_session.h"

#include "host/session/extensions.h"
#include "host/session/job_options.h"
#include "host/session/panel_values.h"
#include "platform/exception.h"
#include "platform/key_value_object.h"
#include "platform/logging.h"

#include <QScopedValueRollback>

#include <algorithm>
#include <utility>

namespace host {

namespace {

// Panels declare the PPD options that they handle under this key.
const QString supportedKeywordsKey = QStringLiteral("supportedPPDOptionKeys");

// Nests; for calls into panels.
class Busy
{
public:
    explicit Busy(int *depth) : m_depth(depth) { ++*m_depth; }
    ~Busy() { --*m_depth; }
    Busy(const Busy &) = delete;
    Busy &operator=(const Busy &) = delete;

private:
    int *m_depth;
};

QStringList keywordsOf(platform::PrintDialogPanel *panel)
{
    platform::KeyValueObject *object = panel->keyValueObject();
    const bool declares =
        object->metaObject()->indexOfProperty(supportedKeywordsKey.toLatin1().constData()) >= 0;
    return declares ? object->valueForKey(supportedKeywordsKey).toStringList() : QStringList();
}

} // namespace

DialogSession::DialogSession(const Destination &destination, std::unique_ptr<PpdDocument> ppd)
    : m_rule(Policy::current().ruleFor(destination.queue)), m_destination(destination), m_ppd(std::move(ppd))
{
    if (const QString problem = Policy::current().problem(); !problem.isNull())
        addNotice(problem);
    m_rule.applyTo(&m_destination, m_ppd.get());
    m_printSession.printer = platform::Printer{destination.name(), destination.deviceUri};
    m_printSession.ppd = ppdFile();
    if (m_ppd)
        m_notices += m_ppd->markOptions(m_destination.options);
    for (auto it = m_destination.options.begin(); it != m_destination.options.end(); ++it) {
        if (isPanelSetting(it.key()))
            m_printSettings.setValue(it.key(), it.value());
    }
    m_startingGeneral = m_general = GeneralSettings::from(m_destination.options);
    tellUnknownDefaults();
}

DialogSession::~DialogSession()
{
    m_panels.clear();
}

void DialogSession::loadPanels(Extensions &extensions)
{
    if (!m_ppd)
        return;
    m_protection = extensions.protectionFor(m_ppd->modelName(), &m_notices);
    for (auto it = m_rule.locked.begin(); it != m_rule.locked.end(); ++it) // no way out gives it up
        m_protection.choices[it.key()].append(it.value());
    adoptPanels(extensions.panelsFor(m_ppd->modelName(), this, &m_notices));
}

bool DialogSession::isSecret(const QString &key) const
{
    const auto option = m_ppd ? m_ppd->option(key) : std::nullopt;
    return m_protection.secretOf(option ? option->keyword : key) ||
           (option && option->custom && option->custom->isSecret());
}

// A choice that the PPD does not have is not marked, and a filter would take its own default for it.
void DialogSession::tellUnknownDefaults()
{
    QStringList unknown;
    for (auto it = m_destination.options.begin(); m_ppd && it != m_destination.options.end(); ++it) {
        const auto option = m_ppd->option(it.key());
        if (!option || option->choices.isEmpty() || GeneralSettings::covers(it.key()))
            continue;
        const QString &value = it.value();
        const bool isKnown =
            std::any_of(option->choices.begin(), option->choices.end(), [&](const auto &choice) {
                return choice.keyword.compare(value, Qt::CaseInsensitive) == 0;
            });
        if (!isKnown && !isCustomChoice(value))
            unknown.append(option->text);
    }
    if (!unknown.isEmpty())
        addNotice(tr("Your defaults for this printer ask for choices that it does not have: %1.")
                      .arg(unknown.join(QStringLiteral(", "))));
}

void DialogSession::panelFailed(const QString &, const QString &reason)
{
    addNotice(tr("A page of the printer's settings cannot be shown: %1").arg(reason));
}

void DialogSession::adoptPanels(platform::PrintDialogPanels panels)
{
    for (auto &panel : panels) {
        QStringList keywords = keywordsOf(panel.get());
        m_panels.push_back({std::move(panel), std::move(keywords), {}, {}});
    }
    for (size_t i = 0; i < m_panels.size(); ++i)
        watch(i);
    settle();
}

void DialogSession::watch(size_t index)
{
    connect(m_panels[index].panel->keyValueObject(), &platform::KeyValueObject::valueDidChange, this,
            [this, index](const QString &key) {
                Panel &panel = m_panels[index];
                if (!panel.restored && m_announcing != &panel)
                    panel.touched.insert(key);
                noteSetting(static_cast<int>(index), key);
                const QString locked = m_rule.lockedChoice(m_ppd.get(), key);
                if (!locked.isNull() && panel.panel->keyValueObject()->valueForKey(key).toString() != locked)
                    QMetaObject::invokeMethod(
                        this, [this, index, key] { keepLocked(index, key); }, Qt::QueuedConnection);
            });
}

// When the panel has done what follows from the change.
void DialogSession::keepLocked(size_t index, const QString &key)
{
    const Panel &panel = m_panels[index];
    const QString locked = m_rule.lockedChoice(m_ppd.get(), key);
    if (panel.panel->keyValueObject()->valueForKey(key).toString() == locked)
        return;
    setOnPanel(panel, key, locked);
    const OptionChoice kept = m_ppd->described(key, locked);
    addNotice(
        tr("“%1” stays “%2”. %3").arg(kept.optionText, kept.choiceText, Policy::current().attribution()));
    Q_EMIT changed();
}

// Whatever follows from a setting follows before control returns to the event loop.
void DialogSession::noteSetting(int panel, const QString &key)
{
    if (!m_panels[static_cast<size_t>(panel)].keywords.contains(key))
        return;
    if (m_justSet.isEmpty())
        QMetaObject::invokeMethod(
            this, [this] { m_justSet.clear(); }, Qt::QueuedConnection);
    m_justSet.insert(panel, {++m_settings, key});
}

OptionChoice DialogSession::causeBesides(int owner) const
{
    std::pair<int, QString> latest;
    int panel = -1;
    for (auto it = m_justSet.begin(); it != m_justSet.end(); ++it) {
        if (it.key() != owner && it->first > latest.first) {
            latest = it.value();
            panel = it.key();
        }
    }
    if (panel < 0 || !m_ppd)
        return {};
    const auto &set = m_panels[static_cast<size_t>(panel)].panel;
    return m_ppd->described(latest.second, set->keyValueObject()->valueForKey(latest.second).toString());
}

platform::PrintDialogPanel *DialogSession::panel(int index) const
{
    return m_panels.at(static_cast<size_t>(index)).panel.get();
}

int DialogSession::panelOfKeyword(const QString &keyword) const
{
    for (size_t i = 0; i < m_panels.size(); ++i) {
        if (m_panels[i].keywords.contains(keyword))
            return static_cast<int>(i);
    }
    return -1;
}

int DialogSession::panelOfSetting(const QString &keyPath) const
{
    for (size_t i = 0; i < m_panels.size(); ++i) {
        if (settableKeysOf(static_cast<int>(i)).contains(keyPath))
            return static_cast<int>(i);
    }
    return -1;
}

QStringList DialogSession::settableKeysOf(int panel) const
{
    return settableKeys(this->panel(panel)->keyValueObject(), panelKeywords(panel));
}

void DialogSession::prepare(int index)
{
    const auto wanted = static_cast<size_t>(index);
    if (m_panels.at(wanted).restored)
        return;
    for (size_t i = 0; i < wanted; ++i) {
        if (!m_panels[i].followsChoices())
            announceChoices(m_panels[i]);
        settle();
    }
    restore(m_panels[wanted]);
    settle();
}

// Sets what is marked in the PPD, which is what a restore would read, so that the panels that listen to it
// know.
void DialogSession::announceChoices(Panel &panel)
{
    panel.announced = true;
    const QScopedValueRollback<const Panel *> announcing(m_announcing, &panel);
    for (const QString &keyword : std::as_const(panel.keywords)) {
        const QString choice = m_ppd->markedChoice(keyword);
        if (!choice.isEmpty())
            setOnPanel(panel, keyword, choice);
    }
}

void DialogSession::restore(Panel &panel)
{
    const Busy busy(&m_busy);
    panel.restored = true; // also when it fails: a second attempt would ask a device that is away again
    QString error;
    try {
        if (!panel.panel->restoreValuesAndReturnError(&error))
            m_notices.append(tr("“%1” could not be prepared: %2").arg(panel.panel->panelName(), error));
    } catch (const std::exception &exception) {
        m_notices.append(tr("“%1” could not be prepared: %2")
                             .arg(panel.panel->panelName(), QString::fromUtf8(exception.what())));
    }
    lookAtKeys(panel, false);
}

// Keys of a panel beside its PPD options, such as the profiles of a device. What differs from the last look
// has been chosen since.
void DialogSession::lookAtKeys(Panel &panel, bool areChosen)
{
    platform::KeyValueObject *object = panel.panel->keyValueObject();
    for (const QString &key : settableKeys(object, panel.keywords)) {
        const QVariant value = object->valueForKeyPath(key);
        if (areChosen && !sameValue(value, panel.keyValues.value(key)))
            noteChosen({key, value.toString()});
        panel.keyValues.insert(key, value);
    }
}

// A panel that cannot reach its device takes the settings for it out of the job.
void DialogSession::tellDropped(const Panel &panel, const QVariantMap &before)
{
    QStringList dropped;
    for (auto it = before.begin(); it != before.end(); ++it) {
        if (!m_printSettings.value(it.key()).isValid())
            dropped.append(it.key().section(QLatin1Char('.'), -1));
    }
    if (!dropped.isEmpty())
        addNotice(tr("Stored settings of “%1” are not sent with the job (%2): %3")
                      .arg(panel.panel->panelName(), dropped.join(QStringLiteral(", ")),
                           panel.panel->unavailableReason()));
}

void DialogSession::save()
{
    for (size_t i = 0; i < m_panels.size(); ++i) {
        if (m_panels[i].restored)
            savePanel(i);
    }
    settle();
}

void DialogSession::savePanel(size_t index)
{
    const Busy busy(&m_busy);
    platform::PrintDialogPanel *panel = m_panels[index].panel.get();
    m_saving = static_cast<int>(index);
    const QVariantMap settings = m_printSettings.values();
    QString error;
    try {
        if (!panel->saveValuesAndReturnError(&error))
            m_notices.append(
                tr("The settings of “%1” could not be saved: %2").arg(panel->panelName(), error));
    } catch (const std::exception &exception) {
        m_notices.append(tr("The settings of “%1” could not be saved: %2")
                             .arg(panel->panelName(), QString::fromUtf8(exception.what())));
    }
    m_saving = -1;
    lookAtKeys(m_panels[index], true);
    tellDropped(m_panels[index], settings);
}

QStringList DialogSession::otherKeywords() const
{
    QStringList others;
    if (!m_ppd)
        return others;
    const QStringList general = generalOptionKeywords(*m_ppd);
    for (const QString &keyword : m_ppd->optionKeywords()) {
        const bool shown = general.contains(keyword) || panelOfKeyword(keyword) >= 0;
        if (!shown && !m_ppd->isInstallable(keyword) && keyword != QLatin1String("Collate"))
            others.append(keyword);
    }
    return others;
}

bool DialogSession::markChoice(const QString &keyword, const QString &choice, bool isSecret)
{
    const QString locked = m_rule.lockedChoice(m_ppd.get(), keyword);
    const int owner = panelOfKeyword(keyword);
    const bool isFixed = (!locked.isNull() && locked != choice) || (owner >= 0 && isPanelLocked(owner));
    if (!m_ppd || isFixed || !m_ppd->mark(keyword, choice))
        return false;
    m_lastUserKeyword = keyword;
    ChosenSetting setting{keyword, choice};
    setting.isSecret = isSecret;
    noteChosen(setting);
    setOnPanels(keyword, choice);
    settle();
    return true;
}

void DialogSession::noteChosen(ChosenSetting setting)
{
    // A panel repeats, when it is saved, what it was set to.
    const auto &earlier = m_chosen.inOrder();
    setting.isSecret |=
        isSecret(setting.key) || std::any_of(earlier.begin(), earlier.end(), [&](const ChosenSetting &known) {
            return known.isSecret && known.key == setting.key && known.value == setting.value;
        });
    m_chosen.add(setting.text.isNull() ? inWords(*this, setting) : setting);
}

void DialogSession::setOnPanels(const QString &keyword, const QString &choice)
{
    for (const Panel &panel : m_panels) {
        if (panel.followsChoices() && panel.keywords.contains(keyword))
            setOnPanel(panel, keyword, choice);
    }
}

void DialogSession::setOnPanel(const Panel &panel, const QString &keyword, const QString &choice)
{
    const Busy busy(&m_busy);
    try {
        panel.panel->keyValueObject()->setValueForKey(choice, keyword);
    } catch (const platform::Exception &exception) {
        qCWarning(lcHost).noquote() << exception.description();
    }
}

QList<Conflict> DialogSession::conflicts() const
{
    return m_ppd ? m_ppd->conflicts() : QList<Conflict>();
}

std::optional<Resolution> DialogSession::proposal(QString *givenUp) const
{
    return m_ppd ? protectingResolution(*m_ppd, m_protection, m_lastUserKeyword, givenUp) : std::nullopt;
}

QString DialogSession::protectionGap() const
{
    return m_ppd ? host::protectionGap(*m_ppd, m_protection, m_chosen) : QString();
}

void DialogSession::apply(const Resolution &resolution)
{
    for (const OptionChoice &change : resolution) {
        m_ppd->mark(change.option, change.choice);
        m_savedKeywords.insert(change.option);
        noteChosen({change.option, change.choice});
    }
    for (const OptionChoice &change : resolution)
        setOnPanels(change.option, change.choice);
    save();
    Q_EMIT changed();
}

QStringList DialogSession::takeNotices()
{
    return std::exchange(m_notices, {});
}

void DialogSession::willChangePPDOptionKeyValuePpdChoice(const QString &keyword, const QVariant &choice)
{
    Q_UNUSED(choice) // what really happens to the option is looked at when the call is over
    const int owner = panelOfKeyword(keyword);
    const bool byUser = m_saving >= 0 && owner == m_saving;
    m_ledger.announce(keyword, currentValue(keyword), byUser, byUser ? OptionChoice() : causeBesides(owner));
    if (m_busy == 0)
        settleLater();
}

QVariant DialogSession::currentValue(const QString &keyword) const
{
    if (m_ppd && m_ppd->hasOption(keyword)) {
        const QString choice = m_ppd->markedChoice(keyword);
        return choice.isEmpty() ? QVariant() : QVariant(choice);
    }
    return m_printSettings.value(keyword);
}

void DialogSession::putBack(const QString &keyword, const QVariant &value)
{
    if (sameValue(currentValue(keyword), value))
        return;
    if (m_ppd && m_ppd->hasOption(keyword))
        m_ppd->mark(keyword, value.toString());
    else
        m_printSettings.setValue(keyword, value);
}

void DialogSession::settleLater()
{
    if (std::exchange(m_settleQueued, true))
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
    QList<UnaskedChange> unasked;
    for (const ChangeLedger::Entry &entry : m_ledger.take()) {
        const int owner = panelOfKeyword(entry.keyword);
        const Panel *panel = owner < 0 ? nullptr : &m_panels[static_cast<size_t>(owner)];
        // A panel that saves itself before it was restored writes defaults for what it has never read. Only
        // what it has set on purpose counts; the rest stays in the job as it came.
        if (panel && !panel->restored && !panel->touched.contains(entry.keyword)) {
            putBack(entry.keyword, entry.before);
            continue;
        }
        m_savedKeywords.insert(entry.keyword);
        const QVariant after = currentValue(entry.keyword);
        if (sameValue(entry.before, after))
            continue;
        if (entry.byUser) {
            m_lastUserKeyword = entry.keyword;
            noteChosen({entry.keyword, after.toString()});
        } else if (m_ppd && m_ppd->hasOption(entry.keyword)) {
            unasked.append({m_ppd->described(entry.keyword, after.toString()),
                            after.toString() == m_ppd->defaultChoice(entry.keyword), entry.cause});
        }
    }
    m_notices += changeNotices(unasked);
}

void DialogSession::willBlock(const QString &what)
{
    Q_EMIT blockingBegan(what);
}

void DialogSession::didBlock()
{
    Q_EMIT blockingEnded();
}

QList<SummarySection> DialogSession::summary()
{
    for (Panel &panel : m_panels) {
        if (!panel.followsChoices())
            announceChoices(panel);
    }
    settle();
    QList<SummarySection> sections{generalSummary(*this)};
    for (const Panel &panel : m_panels) {
        SummarySection section{panel.panel->panelName(), {}, static_cast<int>(&panel - m_panels.data())};
        const QMap<QString, QString> info = panel.panel->summaryInfo();
        for (auto it = info.begin(); it != info.end(); ++it)
            section.entries.append({it.key(), it.value()});
        if (!section.entries.isEmpty())
            sections.append(section);
    }
    return sections;
}

QList<JobOption> DialogSession::jobOptions() const
{
    return host::jobOptions(
        {m_destination, m_ppd.get(), m_chosen, m_savedKeywords, m_printSettings.values(), m_general});
}

} // namespace host
