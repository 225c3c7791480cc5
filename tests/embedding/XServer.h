// An X server without a screen, for one test.
#pragma once

#include <QProcess>
#include <QString>

#include <gtest/gtest.h>

namespace zantroq::test {

class CXServer
{
public:
    CXServer()
    {
        m_server.setProcessChannelMode(QProcess::SeparateChannels);
        m_server.start("Xvfb", {"-displayfd", "1", "-screen", "0", "1280x960x24", "-nolisten", "tcp"});
        while (!m_server.canReadLine() && m_server.waitForReadyRead(60'000))
            ;
        m_display = ':' + QString::fromLatin1(m_server.readLine()).trimmed();
        EXPECT_NE(m_display.toStdString(), ":") << m_server.readAllStandardError().toStdString();
    }
    ~CXServer()
    {
        m_server.terminate();
        if (!m_server.waitForFinished(10'000))
            m_server.kill();
        m_server.waitForFinished();
    }
    const QString& Display() const { return m_display; }

private:
    QProcess m_server;
    QString m_display;
};

} // namespace zantroq::test
