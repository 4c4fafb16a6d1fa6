// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/window/presets/preset_dialog.h"

#include "host/printing/preset_store.h"
#include "host/window/look/explanations.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

namespace host {

namespace {

constexpr int leastWidth = 380; // pixels

} // namespace

PresetDialog::PresetDialog(Purpose purpose, const QString &name, const QStringList &taken, bool offersSecrets,
                           QWidget *parent)
    : QDialog(parent), m_purpose(purpose), m_earlierName(name), m_taken(taken),
      m_name(new QLineEdit(name, this)), m_problem(new QLabel(this)),
      m_secrets(new QCheckBox(tr("Keep &passwords and codes as well"), this))
{
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(purpose == Purpose::Save ? tr("Save Settings") : tr("Rename Preset"));
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    m_ok = buttons->button(QDialogButtonBox::Ok);
    auto *label = new QLabel(tr("&Name of the preset:"), this);
    label->setBuddy(m_name);
    m_problem->setTextFormat(Qt::PlainText);
    m_problem->setWordWrap(true);
    m_problem->setAlignment(Qt::AlignTop | Qt::AlignLeading);
    // reserves space, so that nothing moves when a text appears
    m_problem->setMinimumHeight(2 * fontMetrics().lineSpacing());
    auto *warning =
        new QLabel(tr("Other users of this computer may be able to read them in the preset file."), this);
    warning->setWordWrap(true);
    warning->setIndent(22);
    m_secrets->setVisible(offersSecrets);
    warning->setVisible(offersSecrets);
    m_secrets->setAccessibleDescription(warning->text());
    m_name->setWhatsThis(explanationOf(QStringLiteral("preset-name")));
    m_secrets->setWhatsThis(explanationOf(QStringLiteral("preset-secrets")));
    m_ok->setWhatsThis(explanationOf(purpose == Purpose::Save ? QStringLiteral("preset-save")
                                                              : QStringLiteral("preset-rename")));
    buttons->button(QDialogButtonBox::Cancel)->setWhatsThis(explanationOf(QStringLiteral("preset-cancel")));

    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(20, 16, 20, 14);
    column->setSpacing(8);
    for (QWidget *part : std::initializer_list<QWidget *>{label, m_name, m_problem, m_secrets, warning})
        column->addWidget(part);
    column->addSpacing(6);
    column->addStretch(1);
    column->addWidget(buttons);
    setMinimumWidth(leastWidth);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(m_name, &QLineEdit::textChanged, this, &PresetDialog::check);
    m_name->selectAll();
    m_name->setFocus();
    check();
}

QString PresetDialog::name() const
{
    return m_name->text();
}

bool PresetDialog::keepsSecrets() const
{
    return m_secrets->isChecked();
}

void PresetDialog::check()
{
    const QString name = m_name->text();
    const bool isTaken = m_purpose == Purpose::Save
                             ? std::any_of(m_taken.begin(), m_taken.end(),
                                           [&](const QString &other) { return isSamePreset(name, other); })
                             : m_taken.contains(name, Qt::CaseInsensitive) &&
                                   name.compare(m_earlierName, Qt::CaseInsensitive) != 0;
    const bool isEmpty = name.isEmpty(); // an empty name is no error before anything is typed
    QString problem = isEmpty ? QString() : PresetStore::nameProblem(name);
    m_ok->setEnabled(problem.isNull() && !isEmpty && !(isTaken && m_purpose == Purpose::Rename));
    if (problem.isNull() && isTaken)
        problem = m_purpose == Purpose::Save ? tr("The preset of this name will be replaced.")
                                             : tr("There is already a preset of this name.");
    m_problem->setText(problem);
    m_name->setAccessibleDescription(problem);
    m_ok->setText(isTaken && m_purpose == Purpose::Save ? tr("&Replace")
                  : m_purpose == Purpose::Save          ? tr("&Save")
                                                        : tr("&Rename"));
}

} // namespace host
