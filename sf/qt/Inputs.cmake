# Sources of this control family are added here with target_sources(sf PRIVATE ...).
