// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/window/guide/help_desk.h"

#include "host/printing/message_language.h"
#include "host/session/dialog_session.h"
#include "host/window/guide/help_page.h"
#include "host/window/pages/page_book.h"
#include "host/window/pages/page_controls.h"
#include "host/window/pages/page_list.h"
#include "platform/panel_extras.h"

#include <QApplication>
#include <QFile>
#include <QScrollBar>
#include <QStackedWidget>
#include <QTextBrowser>

#include <algorithm>

namespace host {

namespace {

// The help of the panel on this page; null if it has none.
QString panelHelp(const DialogSession &session, const QString &page)
{
    for (int i = 0; i < session.panels().count(); ++i) {
        auto *help = dynamic_cast<platform::PanelHelp *>(session.panels().panel(i));
        if (help && session.panels().panel(i)->panelKind() == page)
            return help->helpText();
    }
    return {};
}

QList<HelpPage::Explained> explainedOn(const QWidget *page)
{
    QList<HelpPage::Explained> explained;
    for (const PageControl &found : page ? controlsOf(page) : QList<PageControl>()) {
        // Several adjacent controls, such as a field and its button, may have the same explanation.
        const QString text = found.control->whatsThis();
        const bool isListed =
            std::any_of(explained.cbegin(), explained.cend(),
                        [&](const HelpPage::Explained &listed) { return listed.text == text; });
        if (!text.isEmpty() && text != found.name && !isListed)
            explained.append({found.name, text});
    }
    return explained;
}

// The program's help on a topic, in the user's language or else in English; null if there is none.
QString topicText(const QString &topic)
{
    for (QString language : dialogLanguages() + QStringList(QStringLiteral("en"))) {
        language = language.section(QLatin1Char('-'), 0, 0).section(QLatin1Char('_'), 0, 0);
        QFile page(QStringLiteral(":/help/%1/%2.md").arg(language, topic));
        if (page.open(QIODevice::ReadOnly))
            return QString::fromUtf8(page.readAll());
    }
    return {};
}

} // namespace

HelpDesk::HelpDesk(PageBook *book) : QObject(book->window()), m_book(book) {}

QStackedWidget *HelpDesk::stack() const
{
    return m_book->stack();
}

bool HelpDesk::isOpen() const
{
    return m_page && stack()->currentWidget() == m_page;
}

void HelpDesk::toggle()
{
    if (isOpen()) {
        close();
        return;
    }
    if (!m_book->session() || m_book->isHidden())
        return;
    m_before = QApplication::focusWidget();
    if (!showTopic(m_book->nameOf(m_book->currentRow())))
        showTopic(QStringLiteral("panel"));
}

bool HelpDesk::showTopic(const QString &topic)
{
    const int row = m_book->pageNamed(topic);
    const QString page = m_book->nameOf(row);
    QString text = topicText(row < 0 ? topic : page);
    if (text.isNull())
        text = panelHelp(*m_book->session(), page);
    if (text.isNull())
        return false;
    if (!m_page) {
        m_page = new HelpPage(stack());
        stack()->addWidget(m_page);
        connect(m_page, &HelpPage::topicWanted, this, &HelpDesk::showTopic);
        connect(m_page, &HelpPage::closeWanted, this, &HelpDesk::close);
    }
    m_page->show(text, explainedOn(m_book->builtPage(row)));
    // The focus moves before the current page is hidden; it would pass through other controls otherwise.
    m_page->setVisible(true);
    m_page->browser()->setFocus(Qt::OtherFocusReason);
    stack()->setCurrentWidget(m_page);
    // When it is first shown, the browser scrolls to its cursor, before it has its final height.
    m_page->browser()->verticalScrollBar()->setValue(0);
    Q_EMIT shown();
    return true;
}

void HelpDesk::close()
{
    if (QWidget *page = m_book->builtPage(m_book->currentRow())) // as in showTopic()
        page->show();
    if (m_before && m_before->isVisible() && m_before->isEnabled())
        m_before->setFocus(Qt::OtherFocusReason);
    else
        m_book->list()->setFocus(Qt::OtherFocusReason);
    m_book->showPage(m_book->currentRow());
    Q_EMIT shown();
}

} // namespace host
