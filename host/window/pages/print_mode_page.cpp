// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/window/pages/print_mode_page.h"

#include "host/session/dialog_session.h"
#include "host/session/job_settings.h"
#include "host/window/look/announced.h"
#include "host/window/look/contrast.h"
#include "host/window/look/foreign_text.h"
#include "host/window/pages/page_frame.h"

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPalette>

namespace host {

namespace {

constexpr int longestAccount = 63; // characters; fits the limit of the print protocol in every script

} // namespace

PrintModePage::PrintModePage(DialogSession *session, QWidget *parent)
    : HostPage(parent), m_session(session), m_problem(new QLabel(this))
{
    auto *grid = contentGrid(this);
    for (const QString &name : offeredPrintModes(*session)) {
        addField(name,
                 name == passwordName  ? tr("Password:")
                 : name == accountName ? tr("Account:")
                                       : tr("Account user:"),
                 grid);
    }
    makeAnnounced(m_problem);
    m_problem->setTextFormat(Qt::PlainText);
    m_problem->setWordWrap(true);
    m_problem->hide();
    grid->addWidget(m_problem, grid->rowCount(), 0, 1, 3);
    auto *note = new QLabel(tr("The printer keeps a job with a password until the password is entered at its "
                               "control panel. Password and account are sent with the job, and not stored."),
                            this);
    note->setWordWrap(true);
    grid->addWidget(note, grid->rowCount(), 0, 1, 3);
    grid->setRowStretch(grid->rowCount(), 1);
    refresh();
}

void PrintModePage::addField(const QString &name, const QString &label, QGridLayout *grid)
{
    auto *field = new QLineEdit(this);
    const bool isPassword = name == passwordName;
    field->setMaxLength(isPassword ? m_session->destination().passwordLength : longestAccount);
    if (isPassword)
        field->setEchoMode(QLineEdit::Password);
    host::addField(grid, name, label, field);
    m_fields.append(field);
    connect(field, &QLineEdit::textEdited, this, [this, name](const QString &value) {
        const PrintError refusal = setJobSetting(m_session, name, value);
        refresh(); // it may have been refused
        setProblem(refusal.message);
        Q_EMIT chosen(name);
    });
}

void PrintModePage::setProblem(const QString &text)
{
    m_problem->setPalette(errorPalette(palette()));
    m_problem->setText(wrappable(text));
    if (!text.isEmpty())
        announce(m_problem, text);
    m_problem->setVisible(!text.isEmpty());
}

void PrintModePage::refresh()
{
    for (QLineEdit *field : std::as_const(m_fields)) {
        const QString value = jobSettingValue(*m_session, field->objectName());
        if (field->text() != value)
            field->setText(value);
    }
}

} // namespace host
