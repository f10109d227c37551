// Intentionally empty: the target only has precompiled headers.
