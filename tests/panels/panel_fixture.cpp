// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/panels/panel_fixture.h"

#include "platform/bundle.h"
#include "tests/support/paths.h"

#include <QTest>

#include <cups/ppd.h>

void PanelFixture::Close::operator()(ppd_file_s *ppd) const
{
    ppdClose(ppd);
}

PanelFixture::PanelFixture(const QByteArray &ppdName, const QLocale &locale)
{
    const QByteArray path = buildPath("/ppds/").toUtf8() + ppdName + ".ppd";
    m_ownPpd.reset(ppdOpenFile(path.constData()));
    if (!m_ownPpd)
        qFatal("%s cannot be opened", path.constData());
    ppdMarkDefaults(m_ownPpd.get());
    host.ppd = m_ownPpd.get();
    makePanels(locale);
}

PanelFixture::PanelFixture(ppd_file_s *ppd, const QLocale &locale)
{
    host.ppd = ppd;
    makePanels(locale);
}

PanelFixture::~PanelFixture()
{
    m_panels.clear();
}

void PanelFixture::makePanels(const QLocale &locale)
{
    QString error;
    m_bundle = platform::Bundle::open(buildPath("/bin/OrbM880.bundle"), locale, &error);
    if (!m_bundle)
        qFatal("%s", qPrintable(error));
    m_factory.initWithBundle(m_bundle);
    m_panels = std::move(*m_factory.PDEPanelsForTypeWithHostInfo(platform::printDialogPanelType, &host));
}

QWidget *PanelFixture::show(QVPDE_M880 *panel)
{
    panel->restoreValuesAndReturnError(nullptr);
    panel->willShow();
    QWidget *view = panel->panelView();
    view->show();
    view->activateWindow();
    if (!QTest::qWaitForWindowActive(view))
        qFatal("the panel's window does not become active");
    return view;
}

QString PanelFixture::marked(const QString &option) const
{
    const ppd_choice_t *choice = ppdFindMarkedChoice(host.ppd, option.toLatin1().constData());
    return choice ? QString::fromLatin1(choice->choice) : QString();
}
