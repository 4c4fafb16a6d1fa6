// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/window/jobs/result_page.h"

#include "host/session/job_settings.h"
#include "host/window/look/announced.h"
#include "host/window/look/centred_label.h"
#include "host/window/look/changing_label.h"
#include "host/window/look/dialog_button.h"
#include "host/window/look/explanations.h"
#include "host/window/look/foreign_text.h"
#include "host/window/look/status_glyph.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

#include <utility>

namespace host {

namespace {

constexpr int iconSize = 48; // pixels

StatusGlyph::Kind kindOf(const JobStatus &status)
{
    if (status.printerStopped && !status.isFinal())
        return StatusGlyph::Kind::Notice;
    switch (status.state) {
    case JobStatus::State::Aborted:
        return StatusGlyph::Kind::Error;
    case JobStatus::State::Cancelled:
    case JobStatus::State::Stopped:
    case JobStatus::State::Unknown:
    case JobStatus::State::Held:
    case JobStatus::State::Gone:
        return StatusGlyph::Kind::Notice;
    default:
        return StatusGlyph::Kind::Success;
    }
}

} // namespace

ResultPage::ResultPage(QWidget *parent)
    : QWidget(parent), m_glyph(new StatusGlyph(iconSize, this)), m_title(centredLabel(this)),
      m_documents(centredLabel(this)), m_state(centredLabel(this)), m_notes(centredLabel(this))
{
    // Title and state are announced separately. Otherwise a screen reader would repeat both when one of them
    // changes or a button gets the focus.
    makeAnnounced(m_title);
    QFont large = m_title->font();
    large.setPointSizeF(large.pointSizeF() * 1.35);
    large.setBold(true);
    m_title->setFont(large);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(40, 24, 40, 24);
    column->setSpacing(10);
    column->addStretch(2);
    column->addWidget(m_glyph, 0, Qt::AlignHCenter);
    for (QLabel *label : {m_title, m_documents, m_state, m_notes})
        column->addWidget(label);
    column->addStretch(3);
}

// Created when there is a job with possible actions.
void ResultPage::buildActions()
{
    m_earlier = centredLabel(this);
    m_earlier->hide();
    m_problem = centredLabel(this);
    makeAnnounced(m_problem);
    m_problem->hide();
    m_cancelJob = new DialogButton(tr("Cancel &Job"), this);
    m_hold = new DialogButton({}, this);
    m_again = new DialogButton(tr("Print &Again"), this);
    auto *row = new QHBoxLayout;
    row->setContentsMargins(0, 12, 0, 0);
    row->setSpacing(10);
    row->addStretch();
    m_cancelJob->setWhatsThis(explanationOf(QStringLiteral("cancel-job")));
    m_hold->setWhatsThis(explanationOf(QStringLiteral("hold-job")));
    m_again->setWhatsThis(explanationOf(QStringLiteral("print-again")));
    for (QPushButton *button : {m_cancelJob, m_hold, m_again}) {
        button->setAutoDefault(false);
        button->setFocusPolicy(Qt::TabFocus); // a click leaves the focus on the window's Close button
        row->addWidget(button);
    }
    row->addStretch();
    auto *column = static_cast<QVBoxLayout *>(layout());
    const int end = column->count() - 1; // before the stretch
    column->insertWidget(end, m_earlier);
    column->insertWidget(end + 1, m_problem);
    column->insertLayout(end + 2, row);
    connect(m_cancelJob, &QPushButton::clicked, this, [this] { Q_EMIT actionWanted(JobAction::Cancel); });
    connect(m_hold, &QPushButton::clicked, this,
            [this] { Q_EMIT actionWanted(m_holds ? JobAction::Hold : JobAction::Release); });
    connect(m_again, &QPushButton::clicked, this, &ResultPage::printAgainWanted);
}

void ResultPage::showSubmission(const QString &printer, const QString &documents,
                                const Submission &submission)
{
    const SubmittedJob &job = submission.job;
    m_printer = oneLine(printer);
    m_id = job.id;
    m_documents->setText(wrappable(documents));
    m_documents->setVisible(!documents.isEmpty());
    m_notes->setText(wrappable(job.differences.join(QLatin1Char('\n'))));
    m_notes->setVisible(!job.differences.isEmpty());
    if (!m_again)
        buildActions();
    m_problem->hide();
    m_state->clear();
    if (submission.isAccepted()) {
        showTitle(tr("Sent to “%1”").arg(m_printer));
        showStatus(job.status);
    } else {
        showUnknown(submission);
    }
}

void ResultPage::showUnknown(const Submission &submission)
{
    showTitle(tr("Perhaps sent to “%1”").arg(m_printer));
    m_glyph->setKind(StatusGlyph::Kind::Notice);
    m_state = showAnnounced(m_state, wrappable(submission.error.message));
    showActions({});
}

void ResultPage::showTitle(const QString &title)
{
    m_title->setText(title);
    announce(m_title,
             m_documents->text().isEmpty() ? title : title + QLatin1Char('\n') + m_documents->text());
}

void ResultPage::showStatus(const JobStatus &status)
{
    // Keep the last known state if the server does not respond.
    if (status.state == JobStatus::State::Unknown && !m_state->text().isEmpty())
        return;
    m_glyph->setKind(kindOf(status));
    showActions(status);
    const QString state = wrappable(sentence(status));
    if (state == m_state->text())
        return;
    m_problem->hide(); // about the job's previous state
    m_state = showAnnounced(m_state, state);
}

// Shows only possible actions: a job that has ended, or is unknown, cannot be canceled.
void ResultPage::showActions(const JobStatus &status)
{
    const bool isOpen = status.state != JobStatus::State::Unknown && !status.isFinal();
    m_holds = status.state == JobStatus::State::Pending;
    m_hold->setText(m_holds ? tr("&Hold") : tr("&Release"));
    const bool canRelease = status.state == JobStatus::State::Held && status.isHeldByUser;
    for (const auto &[button, isUseful] : {std::pair(m_cancelJob, isOpen), {m_hold, m_holds || canRelease}}) {
        if (!isUseful && button->hasFocus())
            Q_EMIT focusReleased();
        button->setVisible(isUseful);
    }
}

void ResultPage::showEarlier(const QStringList &lines)
{
    if (!m_earlier)
        return;
    m_earlier->setText(wrappable((QStringList(tr("Sent before:")) + lines).join(QLatin1Char('\n'))));
    m_earlier->setVisible(!lines.isEmpty());
}

void ResultPage::showProblem(const QString &text)
{
    m_problem->setText(wrappable(text));
    m_problem->setVisible(!text.isEmpty());
    if (!text.isEmpty())
        announce(m_problem, text);
}

QString ResultPage::sentence(const JobStatus &status) const
{
    QString sentence = tr("Job %1: %2").arg(m_id).arg(status.text());
    if (status.printedPages > 0)
        sentence +=
            QLatin1Char('\n') + (status.isFinal() ? tr("Pages printed: %1") : tr("Pages printed so far: %1"))
                                    .arg(status.printedPages);
    const bool isHeld = status.state == JobStatus::State::Held;
    if (isHeld && !status.heldUntil.isEmpty())
        sentence += QLatin1Char('\n') + tr("Print: %1", "a time of day, or words such as: at night")
                                            .arg(jobValueText(holdName, status.heldUntil));
    else if (isHeld && !status.isHeldByUser)
        sentence +=
            QLatin1Char('\n') +
            tr("A private job is printed once you enter its password at the printer “%1”.").arg(m_printer);
    return status.message.isEmpty() ? sentence : sentence + QLatin1Char('\n') + status.message;
}

QString ResultPage::text() const
{
    QStringList lines{m_title->text(), m_documents->text(), m_state->text()};
    lines.removeAll(QString());
    return lines.join(QLatin1Char('\n'));
}

} // namespace host
