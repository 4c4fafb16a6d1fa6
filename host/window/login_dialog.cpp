// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/window/login_dialog.h"

#include <QCoreApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QThread>
#include <QWidget>

namespace host {

namespace {

constexpr int leastWidth = 380; // pixels

struct LoginText
{
    Q_DECLARE_TR_FUNCTIONS(LoginText)
};

QLabel *sentence(const QString &text, QWidget *parent)
{
    auto *label = new QLabel(text, parent);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    return label;
}

std::optional<Login> showDialog(const LoginQuestion &question, QWidget *parent)
{
    QDialog dialog(parent);
    dialog.setWindowTitle(LoginText::tr("Log In"));
    auto *user = new QLineEdit(question.user, &dialog);
    auto *password = new QLineEdit(&dialog);
    password->setEchoMode(QLineEdit::Password);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, &dialog);
    auto *form = new QFormLayout(&dialog);
    form->setContentsMargins(20, 16, 20, 14);
    form->setVerticalSpacing(10);
    dialog.setMinimumWidth(leastWidth);
    if (question.again)
        form->addRow(sentence(LoginText::tr("The user name or the password was not accepted."), &dialog));
    form->addRow(sentence(LoginText::tr("The print server %1 wants to know who prints.").arg(question.server),
                          &dialog));
    form->addRow(LoginText::tr("&User name:"), user);
    form->addRow(LoginText::tr("&Password:"), password);
    form->addRow(buttons);
    QObject::connect(buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
    QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    password->setFocus();
    if (dialog.exec() != QDialog::Accepted)
        return std::nullopt;
    return Login{user->text(), password->text()};
}

} // namespace

std::optional<Login> askForLogin(const LoginQuestion &question, QWidget *parent)
{
    if (QThread::currentThread() == qApp->thread())
        return showDialog(question, parent);
    std::optional<Login> answer;
    QMetaObject::invokeMethod(
        qApp, [&] { answer = showDialog(question, parent); }, Qt::BlockingQueuedConnection);
    return answer;
}

} // namespace host
