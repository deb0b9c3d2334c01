-- run: --module nowhere.so SCRIPT
print("never")
