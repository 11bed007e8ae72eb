# Filled by the style descriptions.
