"""Style descriptions and what is written from them."""
