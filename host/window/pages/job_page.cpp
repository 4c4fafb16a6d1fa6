// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/window/pages/job_page.h"

#include "host/session/dialog_session.h"
#include "host/session/job_settings.h"
#include "host/window/look/explanations.h"
#include "host/window/look/foreign_text.h"
#include "host/window/pages/page_frame.h"
#include "platform/choice_box.h"
#include "platform/wheel_guard.h"

#include <QGridLayout>
#include <QLineEdit>
#include <QTimeEdit>

namespace host {

namespace {

constexpr int longestBilling = 255; // bytes; the limit of names in the print protocol

const QString atATime = QStringLiteral("time"); // the entry for a time of day

} // namespace

JobPage::JobPage(DialogSession *session, QWidget *parent) : HostPage(parent), m_session(session)
{
    auto *grid = contentGrid(this);
    addHold(grid);
    m_priority = addBox(
        priorityName, tr("Priority:"),
        {QStringLiteral("25"), QStringLiteral("50"), QStringLiteral("75"), QStringLiteral("100")}, grid);
    m_before = addBox(sheetsName, tr("Cover sheet before:"), coverSheets(*session), grid);
    m_after = addBox(sheetsName, tr("Cover sheet after:"), coverSheets(*session), grid);
    addBilling(grid);
    grid->setRowStretch(grid->rowCount(), 1);
    connect(m_hold, &QComboBox::activated, this, &JobPage::setHold);
    connect(m_priority, &QComboBox::activated, this,
            [this] { set(priorityName, m_priority->currentData().toString()); });
    for (auto *box : {m_before, m_after})
        connect(box, &QComboBox::activated, this, &JobPage::setSheets);
    refresh();
}

platform::ChoiceBox *JobPage::addBox(const QString &name, const QString &label, const QStringList &values,
                                     QGridLayout *grid)
{
    auto *box = new platform::ChoiceBox(this);
    box->setObjectName(name);
    for (const QString &value : values)
        box->addItem(value == atATime ? tr("At a time of day") : oneLine(jobValueText(name, value)), value);
    addField(grid, name, label, box);
    return box;
}

void JobPage::addHold(QGridLayout *grid)
{
    m_hold = addBox(holdName, tr("Print:"),
                    {QStringLiteral("no-hold"), atATime, QStringLiteral("evening"), QStringLiteral("night"),
                     QStringLiteral("weekend"), QStringLiteral("indefinite")},
                    grid);
    m_time = new QTimeEdit(this);
    platform::guardFromWheel(m_time);
    m_time->setObjectName(holdName);
    m_time->setAccessibleName(tr("Time of day"));
    m_time->setWhatsThis(explanationOf(holdName));
    m_time->setDisplayFormat(QLocale().timeFormat(QLocale::ShortFormat));
    m_time->setTime(QTime(18, 0));
    grid->addWidget(m_time, grid->rowCount() - 1, 2, Qt::AlignLeading);
    connect(m_time, &QTimeEdit::timeChanged, this, &JobPage::setHold);
}

void JobPage::addBilling(QGridLayout *grid)
{
    m_billing = new QLineEdit(this);
    m_billing->setMaxLength(longestBilling);
    addField(grid, billingName, tr("Billing information:"), m_billing);
    connect(m_billing, &QLineEdit::textEdited, this,
            [this](const QString &text) { set(billingName, text.trimmed()); });
}

void JobPage::set(const QString &name, const QString &value)
{
    setJobSetting(m_session, name, value);
    refresh();
    Q_EMIT chosen(name);
}

void JobPage::setHold()
{
    const QString value = m_hold->currentData().toString();
    set(holdName, value == atATime ? holdValueOf(m_time->time()) : value);
}

void JobPage::setSheets()
{
    set(sheetsName,
        m_before->currentData().toString() + QLatin1Char(',') + m_after->currentData().toString());
}

// A default of the queue may be a value that is not offered.
void JobPage::showValue(platform::ChoiceBox *box, const QString &value)
{
    if (box->findData(value) < 0)
        box->addItem(oneLine(jobValueText(box->objectName(), value)), value);
    box->setCurrentIndex(box->findData(value));
}

void JobPage::refresh()
{
    const QString hold = jobSettingValue(*m_session, holdName);
    const QTime time = timeOfHold(hold);
    showValue(m_hold, time.isValid() ? atATime : hold);
    const QSignalBlocker quiet(m_time);
    if (time.isValid())
        m_time->setTime(time);
    m_time->setEnabled(time.isValid());
    showValue(m_priority, jobSettingValue(*m_session, priorityName));
    const QString sheets = jobSettingValue(*m_session, sheetsName);
    showValue(m_before, sheets.section(QLatin1Char(','), 0, 0));
    showValue(m_after, sheets.section(QLatin1Char(','), 1));
    const QString billing = jobSettingValue(*m_session, billingName);
    if (m_billing->text().trimmed() != billing)
        m_billing->setText(billing);
}

} // namespace host
