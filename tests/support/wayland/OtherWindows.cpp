// SPDX-License-Identifier: MIT
// Another program with windows of one colour. Lines of standard input tell it what to do:
//     open NAME WIDTH HEIGHT COLOUR    COLOUR as #rrggbb
//     title NAME NEWTITLE
//     enlarge|fill|restore NAME        as large as the desktop, or full screen
//     close NAME
// Lines of standard output tell what its windows see: "NAME shown", "NAME pressed X Y", "NAME released X Y",
// "NAME key TEXT" …

#include <QGuiApplication>
#include <QHash>
#include <QKeyEvent>
#include <QPainter>
#include <QRasterWindow>
#include <QSocketNotifier>

#include <unistd.h>

#include <iostream>
#include <memory>
#include <string>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

class PlainWindow final : public QRasterWindow {
public:
    PlainWindow(const QString& name, const QSize& size, const QColor& colour)
        : m_colour(colour)
    {
        setObjectName(name);
        setTitle(name);
        setFlag(Qt::FramelessWindowHint);
        resize(size);
    }

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter(this).fillRect(QRect({}, size()), m_colour);
        if (!std::exchange(m_shown, true))
            tell(u"shown"_s);
    }
    void mousePressEvent(QMouseEvent* event) override { tell(u"pressed"_s, event->position()); }
    void mouseReleaseEvent(QMouseEvent* event) override { tell(u"released"_s, event->position()); }
    void keyPressEvent(QKeyEvent* event) override { tell(u"key "_s + event->text()); }
    bool event(QEvent* event) override
    {
        if (event->type() == QEvent::Enter || event->type() == QEvent::Leave)
            tell(event->type() == QEvent::Enter ? u"entered"_s : u"left"_s);
        if (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut)
            tell(event->type() == QEvent::FocusIn ? u"focused"_s : u"unfocused"_s);
        return QRasterWindow::event(event);
    }

private:
    void tell(const QString& what) const { std::cout << (objectName() + u' ' + what).toStdString() << std::endl; }
    void tell(const QString& what, const QPointF& point) const
    {
        tell(u"%1 %2 %3"_s.arg(what).arg(point.x()).arg(point.y()));
    }

    QColor m_colour;
    bool m_shown = false;
};

class OtherProgram {
public:
    void obey(const QStringList& words)
    {
        const QString name = words.value(1);
        if (words.value(0) == "open"_L1) {
            m_windows[name] = std::make_shared<PlainWindow>(
                name, QSize(words.value(2).toInt(), words.value(3).toInt()), QColor(words.value(4)));
            m_windows[name]->show();
        } else if (words.value(0) == "close"_L1) {
            m_windows.remove(name);
        } else if (const auto window = m_windows.value(name)) {
            if (words.value(0) == "title"_L1)
                window->setTitle(words.value(2));
            else if (words.value(0) == "enlarge"_L1)
                window->showMaximized();
            else if (words.value(0) == "fill"_L1)
                window->showFullScreen();
            else if (words.value(0) == "restore"_L1)
                window->showNormal();
        }
    }

private:
    QHash<QString, std::shared_ptr<PlainWindow>> m_windows;
};

} // namespace

int main(int argc, char** argv)
{
    const QGuiApplication application(argc, argv);
    QGuiApplication::setQuitOnLastWindowClosed(false);
    OtherProgram program;
    QByteArray read;
    QSocketNotifier input(STDIN_FILENO, QSocketNotifier::Read);
    QObject::connect(&input, &QSocketNotifier::activated, &input, [&] {
        char buffer[4096];
        const ssize_t count = ::read(STDIN_FILENO, buffer, sizeof buffer);
        if (count <= 0)
            return QCoreApplication::quit();
        read.append(buffer, count);
        for (qsizetype end = read.indexOf('\n'); end >= 0; end = read.indexOf('\n')) {
            program.obey(QString::fromUtf8(read.first(end)).split(u' '));
            read.remove(0, end + 1);
        }
    });
    return QGuiApplication::exec();
}
