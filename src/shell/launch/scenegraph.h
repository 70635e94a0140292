// How the window is drawn: by the graphics processor, or by Qt's own software renderer.
//
// What the environment asks for (QT_QUICK_BACKEND, QSG_RHI_BACKEND) comes first. Else the software
// renderer serves a machine without a graphics processor: it is quicker there than a GL that runs
// on the processor, which even to load takes a tenth of a second and 60 MB.
#pragma once

namespace SceneGraph {

/// Arranges that GL contexts share what they hold, as the video player's engine needs it, unless it
/// is plain by now that nobody will draw with GL. Call before the application object.
void prepare();

/// Chooses the renderer. Call before the first window, with a QGuiApplication.
void choose();

} // namespace SceneGraph
