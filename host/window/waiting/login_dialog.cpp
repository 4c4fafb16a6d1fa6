// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/window/waiting/login_dialog.h"

#include "host/window/look/explanations.h"

#include <QCoreApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QThread>

#include <future>
#include <memory>
#include <utility>

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

class LoginDialog : public QDialog
{
public:
    LoginDialog(const LoginQuestion &question, QWidget *parent)
        : QDialog(parent), m_user(new QLineEdit(question.user, this)), m_password(new QLineEdit(this))
    {
        setWindowTitle(LoginText::tr("Log In"));
        m_password->setEchoMode(QLineEdit::Password);
        auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
        auto *form = new QFormLayout(this);
        form->setContentsMargins(20, 16, 20, 14);
        form->setVerticalSpacing(10);
        setMinimumWidth(leastWidth);
        if (question.again)
            form->addRow(sentence(LoginText::tr("The user name or the password was not accepted."), this));
        form->addRow(sentence(
            LoginText::tr("The print server %1 requires a user name and a password.").arg(question.server),
            this));
        if (question.isInClear)
            form->addRow(
                sentence(LoginText::tr("The password will cross the network without encryption."), this));
        form->addRow(LoginText::tr("&User name:"), m_user);
        form->addRow(LoginText::tr("&Password:"), m_password);
        form->addRow(buttons);
        connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
        connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
        for (const auto &[control, setting] : std::initializer_list<std::pair<QWidget *, QString>>{
                 {m_user, QStringLiteral("login-user")},
                 {m_password, QStringLiteral("login-password")},
                 {buttons->button(QDialogButtonBox::Ok), QStringLiteral("login-ok")},
                 {buttons->button(QDialogButtonBox::Cancel), QStringLiteral("login-cancel")}})
            control->setWhatsThis(explanationOf(setting));
        m_password->setFocus();
    }
    std::optional<Login> answer() const
    {
        return result() == Accepted ? std::optional(Login{m_user->text(), m_password->text()}) : std::nullopt;
    }

private:
    QLineEdit *m_user;
    QLineEdit *m_password;
};

// State shared by the requesting thread and the dialog: answered once, at the latest when the dialog is
// destroyed.
class Answer
{
public:
    ~Answer() { give(std::nullopt); }
    void give(const std::optional<Login> &login)
    {
        if (!std::exchange(m_isGiven, true))
            m_login.set_value(login);
    }
    std::future<std::optional<Login>> awaited() { return m_login.get_future(); }

private:
    std::promise<std::optional<Login>> m_login;
    bool m_isGiven = false; // accessed on the dialog's thread only
};

void showDialog(const std::shared_ptr<Answer> &answer, const LoginQuestion &question, QWidget *parent)
{
    auto *dialog = new LoginDialog(question, parent);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setModal(true);
    QObject::connect(dialog, &QDialog::finished, dialog,
                     [answer, dialog] { answer->give(dialog->answer()); });
    dialog->show();
}

} // namespace

// On another thread: shows the dialog without a nested event loop on the main thread. Other waits of the main
// thread could otherwise not end before the dialog is closed.
std::optional<Login> askForLogin(const LoginQuestion &question, const QPointer<QWidget> &parent)
{
    if (QThread::currentThread() == qApp->thread()) {
        LoginDialog dialog(question, parent);
        dialog.exec();
        return dialog.answer();
    }
    auto answer = std::make_shared<Answer>();
    auto awaited = answer->awaited();
    QMetaObject::invokeMethod(
        qApp,
        [answer = std::move(answer), question, parent] {
            if (parent)
                showDialog(answer, question, parent);
        },
        Qt::QueuedConnection);
    return awaited.get();
}

} // namespace host
