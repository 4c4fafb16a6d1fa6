// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/window/pages/summary_page.h"

#include "host/session/job_settings.h"
#include "host/session/session_changes.h"
#include "host/window/look/contrast.h"
#include "host/window/look/explanations.h"
#include "host/window/look/foreign_text.h"
#include "host/window/look/link_label.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>
#include <QVBoxLayout>

#include <algorithm>

namespace host {

namespace {

constexpr int nameWidth = 240; // pixels

// The key of a line of the summary, in which panels use display names for their settings.
QString keyOf(const DialogSession &session, int panel, const QString &name)
{
    if (panel == jobPage || panel == printModePage) {
        const QStringList &names = jobSettingNames();
        const auto job = std::find_if(names.begin(), names.end(),
                                      [&](const QString &key) { return jobSettingText(key) == name; });
        return job == names.end() ? QString() : *job;
    }
    if (panel < 0) {
        const QString general = keyOfGeneralEntry(name);
        if (!general.isEmpty() || !session.ppd())
            return general;
    }
    const QStringList keywords =
        panel >= 0 ? session.panels().keywords(panel) : session.ppd()->optionKeywords();
    for (const QString &keyword : keywords) {
        if (session.ppd()->described(keyword, {}).optionText == name)
            return keyword;
    }
    return panel >= 0 && !keywords.isEmpty() ? keywords.first() : QString();
}

} // namespace

SummaryPage::SummaryPage(QWidget *parent)
    : QWidget(parent), m_onlyChanges(new QCheckBox(tr("S&how changes only"), this))
{
    m_onlyChanges->setWhatsThis(explanationOf(QStringLiteral("only-changes")));
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(24, 20, 24, 20);
    column->setSpacing(12);
    column->addWidget(m_onlyChanges);
    column->addStretch(1);
    connect(m_onlyChanges, &QCheckBox::toggled, this, &SummaryPage::rebuild);
}

void SummaryPage::show(const DialogSession &session, const QList<SummarySection> &sections,
                       const QList<SettingChange> &changes)
{
    m_all.clear();
    for (const SummarySection &section : sections) {
        Part part{section.title, {}};
        for (const auto &[name, value] : section.entries)
            part.lines.append({name, value, keyOf(session, section.panel, name)});
        if (section.panel >= 0) { // panels list their settings alphabetically
            const QStringList keywords = session.panels().keywords(section.panel);
            std::stable_sort(part.lines.begin(), part.lines.end(), [&](const Line &a, const Line &b) {
                return keywords.indexOf(a.key) < keywords.indexOf(b.key);
            });
        }
        m_all.append(part);
    }
    collectChanges(session, changes);
    rebuild();
}

// Collects the changed settings, in the order of the pages and of their controls.
void SummaryPage::collectChanges(const DialogSession &session, const QList<SettingChange> &changes)
{
    QHash<QString, qsizetype> places;
    for (const Part &part : std::as_const(m_all)) {
        places.insert(part.title, places.size());
        for (const Line &line : part.lines)
            places.insert(line.key, places.size());
    }
    const auto place = [&](const QString &name) { return places.value(name, places.size()); };
    m_changed.clear();
    for (const SettingChange &change : changes) {
        const int page = pageOf(session, change.key);
        const QString title = page >= 0               ? session.panels().panel(page)->panelName()
                              : page == morePage      ? moreSummary(session).title
                              : page == jobPage       ? jobSummary(session).title
                              : page == printModePage ? printModeSummary(session).title
                                                      : m_all.first().title;
        auto part = std::find_if(m_changed.begin(), m_changed.end(),
                                 [&](const Part &known) { return known.title == title; });
        if (part == m_changed.end())
            part = m_changed.insert(part, {title, {}});
        const bool hasWords = !change.before.isEmpty() || !change.after.isEmpty();
        const auto worded = [](const QString &text) { return text.isEmpty() ? tr("none") : text; };
        part->lines.append(
            {change.name,
             hasWords
                 ? tr("%1 → %2", "what it was, what it is").arg(worded(change.before), worded(change.after))
                 : tr("changed"),
             change.key});
    }
    std::stable_sort(m_changed.begin(), m_changed.end(),
                     [&](const Part &a, const Part &b) { return place(a.title) < place(b.title); });
    for (Part &part : m_changed)
        std::stable_sort(part.lines.begin(), part.lines.end(),
                         [&](const Line &a, const Line &b) { return place(a.key) < place(b.key); });
}

void SummaryPage::rebuild()
{
    const bool hadFocus = m_sheet && m_sheet->isAncestorOf(focusWidget());
    delete m_sheet;
    m_sheet = new QWidget(this);
    m_grid = new QGridLayout(m_sheet);
    m_grid->setContentsMargins(0, 0, 0, 0);
    m_grid->setHorizontalSpacing(20);
    m_grid->setVerticalSpacing(6);
    m_grid->setColumnStretch(1, 1);
    const QList<Part> &parts = m_onlyChanges->isChecked() ? m_changed : m_all;
    for (const Part &part : parts) {
        addTitle(part.title, &part == &parts.first());
        for (const Line &line : part.lines)
            addLine(line);
    }
    if (parts.isEmpty())
        addTitle(tr("Nothing has been changed."), true);
    static_cast<QVBoxLayout *>(layout())->insertWidget(1, m_sheet);
    m_sheet->show();
    if (hadFocus)
        m_onlyChanges->setFocus();
}

void SummaryPage::addTitle(const QString &title, bool first)
{
    auto *label = new QLabel(oneLine(title), m_sheet);
    label->setTextFormat(Qt::PlainText);
    QFont bold = label->font();
    bold.setBold(true);
    label->setFont(bold);
    label->setContentsMargins(0, first ? 0 : 14, 0, 2);
    m_grid->addWidget(label, m_grid->rowCount(), 0, 1, 2);
}

QWidget *SummaryPage::nameWidget(const Line &line)
{
    QLabel *label = nullptr;
    if (line.key.isEmpty()) {
        label = new QLabel(m_sheet);
    } else {
        auto *link = new LinkLabel(m_sheet);
        connect(link, &LinkLabel::followed, this, [this, key = line.key] { Q_EMIT followed(key); });
        label = link;
    }
    label->setTextFormat(Qt::PlainText);
    label->setText(elided(line.name, label, nameWidth));
    QPalette muted = label->palette();
    muted.setColor(QPalette::WindowText, mutedInk(muted));
    label->setPalette(muted);
    return label;
}

void SummaryPage::addLine(const Line &line)
{
    const int row = m_grid->rowCount();
    auto *right = new QLabel(wrappable(line.value), m_sheet);
    right->setTextFormat(Qt::PlainText);
    right->setWordWrap(true);
    right->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    right->setFocusPolicy(Qt::ClickFocus);
    right->setAccessibleName(QStringLiteral("%1: %2").arg(line.name, line.value));
    m_grid->addWidget(nameWidget(line), row, 0, Qt::AlignTop);
    m_grid->addWidget(right, row, 1);
}

} // namespace host
