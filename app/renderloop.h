// The thread on which the windows are drawn.
#pragma once

/// Draws all windows on the main thread if OpenGL is rendered in software by Mesa's llvmpipe (no graphics
/// card, virtual machines). Otherwise each window has its own render thread, and two of them crash in Mesa
/// 22.3: an upload to a texture (FramePainter::upload()) reads the unprotected scenes of the other windows'
/// contexts. Qt contains the same exception, but compares the vendor, which Mesa has renamed meanwhile.
///
/// Qt then deletes the textures of removed images only while no window has pending updates. A hidden window
/// with pending updates prevents this for all windows, so closed windows must be destroyed
/// (OVWindowOnDemand). A lock around the frames of render threads is no alternative: a grabbed frame has no
/// signal after its end.
///
/// Sets QSG_RENDER_LOOP in the environment, which processes that are started later inherit. Requires the
/// application object. Must be called before the first QQuickWindow is created, on the main
/// thread. Does nothing if the environment selects a render loop (QSG_RENDER_LOOP), or without OpenGL.
void avoidRenderThreadsInSoftware();
