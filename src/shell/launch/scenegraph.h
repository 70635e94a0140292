#pragma once

namespace SceneGraph {

/// Chooses how the window is drawn: on the graphics processor if there is one, else by Qt's own
/// software renderer, which is quicker than a GL that runs on the processor. What the environment
/// asks for (QT_QUICK_BACKEND, QSG_RHI_BACKEND) comes first. Call before the first window, with a
/// QGuiApplication.
void choose();

} // namespace SceneGraph
