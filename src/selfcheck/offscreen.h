// A Qt application that needs no display.
#pragma once

#include <QGuiApplication>

#include <memory>

/// The application object of a mode that makes pictures: on the offscreen platform and with the
/// software scene graph, whatever the user's desktop is, so that they come out alike everywhere.
/// Construct it before any other application object, and nothing of Qt's before it.
class OffscreenApplication
{
public:
    OffscreenApplication();

private:
    // QGuiApplication keeps references to its arguments.
    int m_argc = 1;
    char m_name[9] = "halvorin";
    char *m_argv[2] = { m_name, nullptr };
    std::unique_ptr<QGuiApplication> m_application;
};
