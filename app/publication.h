// What start-up hands to the scene.
#pragma once

class BatchEngine;
class QQmlApplicationEngine;

/// Sets the context properties of the scene. `deviceLibraryInstalled` tells whether any library fills the
/// network role: without one the scene says so. `batchEngine` runs the scene's batches and outlives it.
void publishToScene(QQmlApplicationEngine &engine, BatchEngine &batchEngine, bool deviceLibraryInstalled);
