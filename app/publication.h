// What start-up hands to the scene.
#pragma once

class QQmlApplicationEngine;

/// Sets the context properties of the scene. `deviceLibraryInstalled` tells whether any library fills the
/// network role: without one the scene says so.
void publishToScene(QQmlApplicationEngine &engine, bool deviceLibraryInstalled);
