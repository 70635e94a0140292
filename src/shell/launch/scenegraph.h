// How the window is drawn: by the graphics processor, or by Qt's own software renderer.
//
// What the environment asks for (QT_QUICK_BACKEND, QSG_RHI_BACKEND) comes first. Else the software
// renderer serves a machine without a graphics processor: it is quicker there than a GL that runs
// on the processor, which even to load takes a tenth of a second and 60 MB.
#pragma once

namespace SceneGraph {

/// Arranges that GL contexts share what they hold, unless it is plain by now that nobody will draw
/// with GL. The video player's engine can't do without, whatever draws the window; where this
/// hasn't arranged it, the player does (QtWebEngineQuick::initialize) before its first view. Call
/// before the application object.
void prepare();

/// Chooses the renderer. Call before the first window, with a QGuiApplication.
void choose();

} // namespace SceneGraph
