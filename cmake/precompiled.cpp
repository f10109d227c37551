// Nothing but the precompiled headers of its target.
